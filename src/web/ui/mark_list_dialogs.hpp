#pragma once
// The windows of the mark-list commands' dialogs, registered with the Qt Ui at start.
namespace benchlog {

void RegisterMarkListDialogs();

}  // namespace benchlog
