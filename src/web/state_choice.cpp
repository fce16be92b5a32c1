#include "web/state_choice.hpp"

#include "support_files/country_file.hpp"

namespace benchlog {

frmOptions& ChooseState(Session& session, Platform& platform) {
  auto& options = session.forms.Get<frmOptions>();
  if (!options.Loaded) options.Load(platform.settings);
  options.Clear();
  for (std::string& state : CountryStateList(platform.paths.supportPath + kCountryFileName))
    options.AddItem(std::move(state));
  options.cboChoices = session.config.state;
  options.caption = "Select State:";
  options.Tag.clear();
  platform.ui.ShowModal(options);
  return options;
}

}  // namespace benchlog
