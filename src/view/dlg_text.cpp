#include "view/dlg_text.hpp"

namespace benchlog {

int dlgText::filterKey(int keyAscii) {
  if (keyAscii >= 'a' && keyAscii <= 'z') return keyAscii - 'a' + 'A';
  const bool passes = keyAscii == 8 || keyAscii == ' ' || keyAscii == '+' || keyAscii == '-' || keyAscii == '/' ||
                      (keyAscii >= '0' && keyAscii <= '9') || (keyAscii >= 'A' && keyAscii <= 'Z');
  return passes ? keyAscii : 0;
}

}  // namespace benchlog
