#pragma once
// AbbreviateName: the short form of a mark's name that the Microstation script places beside its
// symbol ("BOSTON RADIO MAST 1934" becomes "BOSTON RAD MST ").
#include <string>

namespace benchlog {

// The name is trimmed, then read from its first character on. At each position every rule of the
// word list is tried once, in the list's order: a rule whose word stands there (and whose
// condition holds) appends its short form and moves behind the word, and the next rule looks at
// the new position. Then four characters that read as a year between 1800 and 2000 (not at the
// start) are dropped, and the one character at the position is copied. No word boundary is
// tested ("A POINTER" gives "A PTER"), and the list's order is kept even where a rule can never
// fire ("LIGHT" stands before "LIGHTHOUSE").
void AbbreviateName(std::string& name);

}  // namespace benchlog
