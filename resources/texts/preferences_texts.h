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
    {kTextPreferences, u"Préférences|Configuration|Affichage|Couleurs|Pages|Aperçu"},
    {kTextRowRefusals,
     u"Une période est vide au-dessus d'une autre : donnez-lui une date, ou videz celles d'au-dessous.|"
     u"Cette période commence après le début du calendrier grégorien.|"
     u"Cette période doit commencer après celle d'au-dessous : la plus récente d'abord."},
    {kTextReformPreset, u"%s : %s → %s|%s : %s → %s (discuté)"},
    {kTextClosedEarly,
     u"Avec ce début du calendrier grégorien, l'année commence de nouveau un 1er janvier dès %d, plus tôt "
     u"que "
     u"l'usage ne le fit."},
    {kTextCivilYearNames, u"Période %d, date de début|Période %d, J.+1|aucune"},
    {kTextTitleElement, u"Titre du mois"},
    {kTextColorPresets, u"Clair|Sombre|Contraste élevé"},
    {kTextPictureHidden, u"L'image de fond est masquée : ces couleurs demandent un fond uni."},
    {kTextElementTip, u"%s\nClic gauche : texte ; clic droit : arrière-plan"},
    {kTextColorColumns, u"Texte|Arrière-plan|Opacité de l'arrière-plan"},
    {kTextCalendarFont, u"Police du calendrier|Police des dialogues|Police"},
    {kTextSwitchesNotStored,
     u"Les options d'affichage n'ont pas pu être enregistrées dans les réglages.\n\n"
     u"Elles valent jusqu'à la fermeture du programme."},
    {kTextPathTooLong,
     u"Ce chemin est trop long\u00A0: celui d'une image compte au plus %d caractères. Le précédent est "
     u"gardé."},
};

}  // namespace orbisol
