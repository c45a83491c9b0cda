// Texts of the main window, of the fields that dialogs share, of help and about, numbers 51xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kWindowTexts[] = {
    {kTextProgramName, u"Orbisol"},
    {kTextCalendarTitle, u"Orbisol - %s"},
    {kTextGregorianGroup, u"Calendrier grégorien"},
    {kTextJulianGroup, u"Calendrier julien"},
    {kTextRepublicanGroup, u"Calendrier républicain"},
    {kTextDifferenceGroup, u"Écart en jours avec le :"},
    {kTextShowGroup, u"Afficher"},
    {kTextFirstDayGroup, u"Premier jour"},
    {kTextRepublicanEntry, u"Saisir date républicaine"},
    {kTextGo, u"Ok"},
    {kTextToday, u"Aujourd'hui"},
    {kTextFirstDayRepublican, u"&républicain"},
    {kTextFirstDayGregorian, u"&grégorien"},
    {kTextFirstDayEra, u"notre èr&e"},
    {kTextFirstDayJulian, u"&julien"},
    {kTextJulianDayNumber, u"Jour julien n° %d"},
    {kTextProlepticGregorian, u"Grégorien proleptique : %s"},
    {kTextKeepDate, u"Retenir la date affichée|Oublier la date retenue"},
    {kTextConverterNames,
     u"Jour républicain|Mois républicain|Année républicaine|Date retenue|Écart en jours"},
    {kTextCivilYearStart, u"Année civile débutant le %d %s|Année civile débutant le 1er %s"},
    {kTextDayCounts, u"%d • %d"},
    {kTextWeekAndDayCounts, u"[%s %d] %d • %d"},
    {kTextHeaderNames, u"Navigation|Mois précédent|Mois suivant|Mois : %s|Année : %d|Année"},
    {kTextHeaderTips, u"Choisir le mois|Saisir l'année"},
    {kTextToolBarName, u"Barre d'outils"},
    {kTextSilentInstance,
     u"Orbisol est déjà ouvert, mais ne répond pas.\nVoulez-vous l'ouvrir une seconde fois ?"},
    {kTextOpenAnyway, u"Ouvrir"},
    {kTextCountsInWords,
     u"%de jour de l'année, il en reste %d|1er jour de l'année, il en reste %d|Dernier jour de l'année, le "
     u"%de|%de jour de l'année|1er jour de l'année"},
    {kTextErasInWords, u"An %d depuis la fondation de Rome (ab Urbe condita)|%d avant Jésus-Christ"},
    {kTextToolkitSource,
     u"Double Sided Printing|Off|Long side binding|Short side binding|Pages|"
     u"Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a "
     u"hyphen. "
     u"E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.|"
     u"%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define "
     u"ranges and make sure ranges do not intersect with each other.|"
     u"Invalid Pages Definition|Printer Properties|Advanced|Page Setup Conflicts|Advanced Option Conflicts|"
     u"Duplex Settings Conflicts|There are conflicts in some options. Please fix them.|"
     u"There are conflicts in page setup options. Do you want to fix them?|"
     u"There are conflicts in some advanced options. Do you want to fix them?|"
     u"There are conflicts in duplex settings. Do you want to fix them?|"
     u"Options 'Pages Per Sheet' and 'Page Set' cannot be used together.|Drive|Folder"},
    {kTextToolkitFrench,
     u"Impression recto verso|Non|Reliure sur le côté long|Reliure sur le côté court|Pages|"
     u"Indiquez des pages ou des plages séparées par des virgules. Une plage s'écrit par deux nombres "
     u"séparés par "
     u"un trait d'union. Par exemple, 3,5-7,9 imprime les pages 3, 5, 6, 7 et 9.|"
     u"%1 n'est pas écrit correctement. Séparez les pages et les plages par « , », écrivez les plages avec "
     u"« - » et faites en sorte qu'elles ne se recouvrent pas.|"
     u"Pages incorrectes|Propriétés de l'imprimante|Avancé|Conflits de mise en page|"
     u"Conflits d'options avancées|Conflits de recto verso|"
     u"Certaines options se contredisent. Veuillez les corriger.|"
     u"Des options de mise en page se contredisent. Voulez-vous les corriger ?|"
     u"Des options avancées se contredisent. Voulez-vous les corriger ?|"
     u"Les réglages de recto verso se contredisent. Voulez-vous les corriger ?|"
     u"Les options « Pages par feuille » et « Jeu de pages » ne vont pas ensemble.|Disque|Dossier"},
    {kTextTakenBack,
     u"À la fin de la dernière session, le calendrier «\u00A0%s\u00A0» n'a pas pu être enregistré\u00A0; il "
     u"a été mis de "
     u"côté.\nIl se trouve maintenant parmi vos calendriers, sous le nom «\u00A0%s\u00A0»."},
    {kTextStillAside,
     u"À la fin de la dernière session, le calendrier «\u00A0%s\u00A0» n'a pas pu être enregistré\u00A0; il "
     u"a été mis de "
     u"côté.\nIl n'a pas encore pu être replacé parmi vos calendriers et reste dans le fichier %s."},
    {kTextSessionHeld,
     u"Vos modifications n'ont pu être enregistrées nulle part\u00A0; le disque est sans doute plein.\n"
     u"La session reste ouverte\u00A0: libérez de la place, puis quittez-la de nouveau."},
    {kTextDayOfMonth, u"%d %s|1er %s"},
    {kTextMissingDate, u"Le %s n'existe pas ; il compte comme le %s"},
    {kTextRange, u"le %s, 1 jour|du %s au %s, %d jours"},
    {kTextDayKinds, u"jour férié|événement|vacances|aujourd'hui"},
    {kTextOfKind, u", %s : %s"},
    {kTextWeekOf, u"Semaine|Semaine %d"},
    {kTextLeadsTo, u"%s : %s %d"},
    {kTextDateFaults,
     u"Écrivez la date en entier, sous la forme %date%.|Ce n'est pas une date. Écrivez-la sous la forme "
     u"%date%.|Les mois vont de 1 à 12.|Cette date n'existe pas : %s %d n'a pas de jour %d.|"
     u"Cette date n'existe pas : le %s est suivi du %s.|Les années vont de -3999 à 3999."},
    {kTextDateEdit, u"Choisir dans un calendrier (Alt+Bas)|Calendrier"},
    {kTextPictureFaults,
     u"Ce fichier n'existe pas ou ne peut pas être lu.|Ce n'est pas un fichier, ou il est vide.|"
     u"Ce n'est pas une image TIFF, JPEG, PNG, GIF ou BMP.|Cette image est trop grande.|"
     u"Cette image est endommagée."},
    {kTextPictureChooser, u"Chemin de l'image|Parcourir...|Image choisie|Image fournie avec le programme"},
    {kTextHelp,
     u"Aide d'Orbisol|Sommaire|Index|Chercher dans l'index|Page de l'aide|Page précédente|Page suivante"},
    {kTextVersion, u"Version %d.%d.%d / %s %d bits"},
    {kTextUsage,
     u"Utilisation : orbisol [--help | --version]\n\n"
     u"Ouvre le calendrier perpétuel : dates juliennes, grégoriennes et républicaines.\n\n"
     u"  --help     affiche cette aide\n"
     u"  --version  affiche la version du programme"},
    {kTextUnknownWord, u"orbisol : « %s » n'est pas une option (voir orbisol --help)"},
    {kTextKeptPlaceholders, u"Retenez une date avec le signet|jours"},
    {kTextReform, u"Dates juliennes, jusqu'au %s|Le %s est suivi du %s|Dates juliennes"},
    {kTextMonthList, u"Ce mois-ci"},
    {kTextDaysOfPeriod, u"%s (%d–%d)"},
    {kTextSpokenLine, u"%s : %s"},
    {kTextCopy, u"&Copier"},
    {kTextNextHoliday, u"Prochain jour férié : %s, %s"},
};

}  // namespace orbisol
