#pragma once
// The viewer's text on screen: the model holds bytes of the Windows-1252 code page with CR LF
// line ends; the text widget holds Unicode with one separator per line end. These convert both
// ways and map caret positions between the two, so that a position in the model counts CR LF as
// two characters, as the program's text does.
#include <QString>
#include <string>

namespace benchlog::qt {

// CR LF and a lone CR become one line break; every byte its Windows-1252 character (ToQt).
QString ToDisplayText(const std::string& text);
// Line breaks become CR LF; characters outside the code page become "?".
std::string FromDisplayText(const QString& text);

// Takes an edit of the shown text into the model's bytes: the shown characters [position,
// position + removed) were replaced by `inserted` (as the text widget reports it, paragraph
// separators for line breaks). Only the characters that really changed are converted: a line
// break typed becomes CR LF, a character outside the code page "?", and every byte around them,
// lone CRs and LFs and the code page's upper half among them, stays as it was.
void ApplyDisplayEdit(std::string& text, int position, int removed, const QString& inserted);

// The model position (0-based, in bytes of `text`) of a display position, and back.
std::size_t ModelPosition(const std::string& text, int displayPosition);
int DisplayPosition(const std::string& text, std::size_t modelPosition);

}  // namespace benchlog::qt
