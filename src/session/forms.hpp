#pragma once
// The program's one-instance windows as models: each is made at its first use and kept, hidden,
// for the rest of the run, so its state can be set again without a new load.
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace benchlog {

class Forms {
 public:
  template <class Form>
  Form& Get() {
    auto& slot = forms_[std::type_index(typeid(Form))];
    if (!slot) slot = std::make_shared<Form>();
    return *static_cast<Form*>(slot.get());
  }
  template <class Form>
  bool Loaded() const {
    return forms_.count(std::type_index(typeid(Form))) != 0;
  }

 private:
  std::unordered_map<std::type_index, std::shared_ptr<void>> forms_;
};

}  // namespace benchlog
