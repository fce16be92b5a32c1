#pragma once
// What a key pressed in one of the web dialogs becomes. The models filter the keys; their windows
// type what comes out, beep, move the focus or close as told.
namespace benchlog {

inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;

struct KeyOutcome {
  int key = 0;             // the character that reaches the control; 0 swallows the key
  bool beep = false;       // the key was refused
  bool nextControl = false;  // the focus moves on, as a tab would move it
};

}  // namespace benchlog
