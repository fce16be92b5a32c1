#include "web/state_choice.hpp"

#include "support_files/country_file.hpp"

namespace benchlog {

frmOptions& ShowOptions(Session& session, Platform& platform, const std::vector<std::string>& choices,
                        const std::string& text, const std::string& caption) {
  auto& options = session.forms.Get<frmOptions>();
  if (!options.Loaded) options.Load(platform.settings);
  options.Clear();
  for (const std::string& choice : choices) options.AddItem(choice);
  options.cboChoices = text;
  options.caption = caption;
  options.Tag.clear();
  platform.ui.ShowModal(options);
  return options;
}

frmOptions& ChooseState(Session& session, Platform& platform) {
  return ShowOptions(session, platform, CountryStateList(platform.paths.supportPath + kCountryFileName),
                     session.config.state, "Select State:");
}

}  // namespace benchlog
