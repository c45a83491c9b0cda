// The words after the program's name. Nothing is configured there:
//
//   AnswerCommandLine({"orbisol", "--version"}, std::cout, std::cerr);  // prints it; 0
//   AnswerCommandLine({"orbisol", "--blue"}, std::cout, std::cerr);     // names "--blue" in one line; 2
//   AnswerCommandLine({"orbisol"}, std::cout, std::cerr);               // nothing: the program is to run
#pragma once

#include <iosfwd>
#include <optional>
#include <string_view>
#include <vector>

namespace orbisol {

// Returns the exit code when the command line asks for a text or cannot be understood; the first word that is
// no option of the toolkit decides. Needs no display. Texts are French, in UTF-8.
std::optional<int> AnswerCommandLine(const std::vector<std::string_view>& words, std::ostream& out,
                                     std::ostream& errors);

}  // namespace orbisol
