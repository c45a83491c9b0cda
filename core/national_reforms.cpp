#include "core/national_reforms.h"

#include "core/text.h"
#include "resources/strings.h"

namespace orbisol {
namespace {

// Last Julian days as `ncal -p` of bsdmainutils 12.1.8 prints them. Two more sources were compared; the
// letters name those that agree: P is E. Poulsen, "The transition from Julian to Gregorian Calendar"
// (Rundetårn observatory), A the table "Introduction of the Gregorian calendar" of sci.aha.ru (ALL, a14).
// Japan and China are left out because they came from lunar calendars, and so is Turkey: its Julian months
// had followed the Gregorian ones since 1917.
constexpr NationalReform kReforms[] = {
    {{}, 15821004, 15821015},        // Rome, P A
    {{}, 19121130, 19121214, true},  // Albania: nobody else
    {{},
     17000218,
     17000301,
     true},                    // Germany, P A for the Protestant states; Catholic ones 1583, Prussia 1610
    {{}, 17520902, 17520914},  // Australia, P with the colonies
    {{}, 15831005, 15831016, true},  // Austria: P has 14 December for Carinthia and Styria, A 6 January 1584
    {{}, 15821214, 15821225, true},  // Belgium: P has 21 December for Brabant and Flanders
    {{}, 19160331, 19160414},        // Bulgaria, A
    {{}, 17520902, 17520914},        // Canada, P with the colonies
    {{}, 17000218, 17000301},        // Denmark, P A
    {{}, 15821004, 15821015},        // Spain, P A
    {{}, 17520902, 17520914},        // United States, P with the colonies
    {{}, 17530217, 17530301},        // Finland, A
    {{}, 15821209, 15821220},        // France, P A
    {{}, 19240309, 19240323, true},  // Greece, A; the church: the state in 1923
    {{}, 15871021, 15871101},        // Hungary, P A
    {{}, 17001116, 17001128},        // Iceland
    {{}, 15821004, 15821015},        // Italy, P A
    {{}, 19180201, 19180215, true},  // Latvia: a day after Russia
    {{}, 19180201, 19180215, true},  // Lithuania: the same
    {{}, 15821214, 15821225, true},  // Luxembourg: A has 21 December
    {{}, 17000218, 17000301},        // Norway, P A
    {{},
     15821214,
     15821225,
     true},                    // Netherlands: P and A have 21 December, P 1700 for Utrecht and Friesland
    {{}, 15821004, 15821015},  // Poland, P A
    {{}, 15821004, 15821015},  // Portugal, P A
    {{}, 19190331, 19190414, true},  // Romania: A has 18 January
    {{}, 17520902, 17520914},        // United Kingdom, P A
    {{}, 19180131, 19180214},        // Russia, A
    {{}, 19190304, 19190318, true},  // Slovenia: P has 1583 for Carinthia and Styria
    {{}, 17530217, 17530301},        // Sweden, A; its own calendar of 1700 to 1712 is left out
    {{}, 16550228, 16550311, true},  // Switzerland: P has 1584 for Catholic, 1701 for Protestant cantons
    {{}, 15840106, 15840117},        // Bohemia, P
    {{}, 19190304, 19190318, true},  // Yugoslavia: A has 18 January for Serbia
};

// On purpose: the first years of Florence, Pisa and Venice are round ones. Their charters are dated in these
// styles from about that time on; none of the sources knows a day.
constexpr CivilYearStyle kStyles[] = {
    {{}, {10000325, false}, 17500101},           // Florence, until Tuscany counted like its neighbors
    {{}, {10000325, true}, 17500101},            // Pisa, likewise
    {{}, {10000301, false}, 17980101},           // Venice, until the end of the republic
    {{}, {4620901, true}, 17000101},             // Byzantium, and Russia until Peter I
    {{}, {11550325, false}, 17520101, 17520914}  // England, until the act of 1750
};
static_assert(std::size(kStyles) == kStyleCount);

// Returns the rows with their names, which are the pieces of an entry of the string table, in the same order.
template <class Row, std::size_t kSize>
std::array<Row, kSize> Named(const Row (&source)[kSize], std::u16string_view Row::*name, int text) {
  std::array<Row, kSize> rows = std::to_array(source);
  int piece = 0;
  for (Row& row : rows) row.*name = Piece(StringText(text), u'|', piece++);
  return rows;
}

}  // namespace

std::span<const NationalReform> NationalReforms() {
  static const auto rows = Named(kReforms, &NationalReform::country, kTextReformCountries);
  return rows;
}

std::span<const CivilYearStyle> CivilYearStyles() {
  static const auto rows = Named(kStyles, &CivilYearStyle::name, kTextCivilYearStyles);
  return rows;
}

std::array<CivilYearStart, kCivilYearRows> CivilYearRowsOf(const CivilYearStyle& style, PackedDate reform) {
  const PackedDate closing = IsClosedEarly(style, reform) ? Pack(Unpack(reform).year, 1, 1) : style.closing;
  return {CivilYearStart{closing, false}, style.first};
}

}  // namespace orbisol
