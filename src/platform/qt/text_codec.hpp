#pragma once
// The program's text is bytes of the Windows-1252 code page; Qt's is Unicode. These convert for
// display and for the platform's services only.
#include <QString>
#include <string>

namespace benchlog::qt {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);  // characters outside the code page become "?"

}  // namespace benchlog::qt
