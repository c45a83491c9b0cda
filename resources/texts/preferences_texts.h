// Texts of the preferences: numbers 55xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kPreferencesTexts[] = {
    {kTextReformCountries,
     u"Rome|Albanie|Allemagne|Australie|Autriche|Belgique|Bulgarie|Canada|Danemark|Espagne|États-Unis|"
     u"Finlande|"
     u"France|Grèce|Hongrie|Islande|Italie|Lettonie|Lituanie|Luxembourg|Norvège|Pays-Bas|Pologne|Portugal|"
     u"Roumanie|Royaume-Uni|Russie|Slovénie|Suède|Suisse|Tchéquie|Yougoslavie"},
    {kTextCivilYearStyles,
     u"Annonciation, 25 mars (Florence)|Annonciation, 25 mars, avec J.+1 (Pise)|1er mars (Venise)|"
     u"1er septembre, avec J.+1 (Byzance)|25 mars, depuis 1155 (Angleterre)"},
};

}  // namespace orbisol
