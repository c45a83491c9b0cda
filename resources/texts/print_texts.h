// Texts of printing, numbers 54xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kPrintTexts[] = {
    {kTextTitleBeforeEra, u"%s %d (%d av. JC)"},
    {kTextYearsTitle, u"%d|%d (%d av. JC)"},
    {kTextTwoYearsTitle, u"%d – %d|%d – %d (%d – %d av. JC)"},
    {kTextRepublicanYears, u"an %s|ans %s – %s"},
    {kTextWeekLabel, u"%s %d |%s %2d"},
    {kTextConcordances, u"Julien|Républicain"},
    {kTextComplementaryDay, u"complémentaire"},
};

}  // namespace orbisol
