// The shipped public calendar of each country. The build makes the table from the sources
// in resources/holidays/.
#pragma once

#include <string_view>

namespace orbisol {

// Returns the name of the public calendar that a first start in this locale shows; empty where none ships. A
// locale is a country ("CH") or a language and a country ("fr_CH").
std::u16string_view CountryCalendar(std::u16string_view locale);

}  // namespace orbisol
