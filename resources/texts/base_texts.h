// Texts of the menus' commands and of dates, numbers below 5000.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kBaseTexts[] = {
    {kCmdQuit, u"Quitter le programme\nQuitter"},
    {kCmdPageSetup, u"Choisir le papier, l'orientation et les marges"},
    {kCmdPrintPages, u"Imprimer les pages"},
    {kCmdClosePrint, u"Fermer la fenêtre d'impression"},
    {kCmdPeriodMonth, u"Imprimer un mois"},
    {kCmdPeriodQuarter1, u"Imprimer le 1er trimestre"},
    {kCmdPeriodQuarter2, u"Imprimer le 2e trimestre"},
    {kCmdPeriodQuarter3, u"Imprimer le 3e trimestre"},
    {kCmdPeriodQuarter4, u"Imprimer le 4e trimestre"},
    {kCmdPeriodHalf1, u"Imprimer le 1er semestre"},
    {kCmdPeriodHalf2, u"Imprimer le 2e semestre"},
    {kCmdPeriodYear, u"Imprimer une année"},
    {kCmdFormatYear, u"Imprimer les douze mois sur une page"},
    {kCmdFormatHalf, u"Imprimer six mois par page"},
    {kCmdFormatQuarter, u"Imprimer trois mois par page"},
    {kCmdFormatMonth, u"Imprimer un mois par page, une ligne par jour"},
    {kCmdFormatScreen, u"Imprimer le mois comme il est à l'écran"},
    {kCmdFormatTable, u"Imprimer un mois par page, une ligne par semaine"},
    {kCmdPrintHolidays, u"Imprimer les jours fériés"},
    {kCmdPrintEvents, u"Imprimer les événements"},
    {kCmdPrintVacations, u"Imprimer les périodes de vacances"},
    {kCmdPrintMoon, u"Imprimer les phases de la lune"},
    {kTextPrevious, u"Clic=mois précédent\nCtrl+clic=-1 an\nMaj.+clic=-10 ans\nCtrl+Maj.+clic=-100 ans"},
    {kTextNext, u"Clic=mois suivant\nCtrl+clic=+1 an\nMaj.+clic=+10 ans\nCtrl+Maj.+clic=+100 ans"},
    {kCmdPreviousPage, u"Afficher la page précédente"},
    {kCmdNextPage, u"Afficher la page suivante"},
    {kTextBrokenInstallation, u"Installation incorrecte - réinstallez le programme."},
    {kTextRuleKinds,
     u"À date fixe|Relatif à Pâques romain|Relatif à Pâques orthodoxe|Jour semaine donné|"
     u"Jour sem. avant date (incluse)|Jour sem. après date (incluse)|Bank Holiday (ni sam. ni dim.)|"
     u"Sauf dimanche"},
    {kTextLongOrdinals, u"premier|second|troisième|quatrième|dernier|"},
    {kTextShortOrdinals, u"1er|2e|3e|4e|Der.|"},
    {kCmdCopyJulianDate, u"Copier la date julienne dans le presse-papier\nCopier la date julienne"},
    {kCmdCopyRepublicanDate,
     u"Copier la date républicaine dans le presse-papier\nCopier la date républicaine"},
    {kCmdCopyDate, u"Copier dans le presse-papier\nCopier (Ctrl+C)"},
    {kCmdPrint, u"Imprimer le calendrier\nImprimer"},
    {kCmdTogglePane, u"Afficher le volet droit\nAfficher le volet droit"},
    {kCmdEditEvents, u"Définir les jours fériés et les événements personnels\nSaisir les événements"},
    {kCmdPreferences, u"Définir les préférences de dates et d'affichage\nPropriétés"},
    {kTextPrintTitle, u"Orbisol - Imprimer"},
    {kTextPictureFilter,
     u"Toutes les images supportées (*.tif;*.tiff;*.jpg;*.jpeg;*png;*.gif;*.bmp)|"
     u"*.tif;*.tiff;*.jpg;*.jpeg;*png;*.gif;*.bmp|"},
    {kTextEras, u"%d AUC | %d av. JC"},
    {kTextNewMoon, u"Nouvelle lune"},
    {kTextFirstQuarter, u"Premier quartier de lune"},
    {kTextFullMoon, u"Pleine lune"},
    {kTextLastQuarter, u"Dernier quartier de lune"},
    {kTextPageOfMonth, u"Page 1 / 1 (%s %d)"},
    {kTextPageOfMonths, u"Page %d / %d (Imprimer de %s %d à %s %d)"},
    {kTextWeek, u"s."},
    {kTextColorCaptions,
     u"Couleur du texte d'en-tête|Couleur du fond d'en-tête|Couleur de jour normal|Couleur d'arrière-plan|"
     u"Couleur du jour férié|Couleur d'arrière-plan du jour férié|Couleur du jour de l'événement|"
     u"Couleur d'arrière-plan de l'événement|Couleur du jour de vacances|"
     u"Couleur d'arrière-plan du jour de vacances|Couleur du cadre actif|Couleur du texte grisé|"
     u"Couleur du texte du titre du mois|Couleur d'arrière-plan du calendrier|"
     u"Couleur du numéro de semaine"},
    {kTextCircleWidths, u"Fin|Moyen|Épais"},
    {kTextCenturies,
     u"premier|deuxième|troisième|quatrième|cinquième|sixième|septième|huitième|neuvième|dixième|"
     u"onzième|douzième|treizième|quatorzième|quinzième|seizième|dix-septième|dix-huitième|"
     u"dix-neuvième"},
    {kTextTenthCenturies, u"vingtième|trentième|quarantième"},
    {kTextCenturyTens, u"vingt|trente|quarante"},
    {kTextCenturyFirst, u"et-unième"},
    {kTextCentury, u"siècle"},
    {kTextCenturyBeforeEra, u"siècle avant notre ère"},
    {kTextOpenPicture, u"Ouvrir le fichier image"},
    {kTextPreviewElements,
     u"En-tête|Autre mois|Jour normal|Cercle du jour actif|N° de semaine|Événement|Jour férié|"
     u"Période de vacances||"},
    {kTextDatePatterns, u"MM/JJ/AAAA|JJ/MM/AAAA|AAAA/MM/JJ|"},
    {kCmdAbout, u"Afficher la version du programme\nÀ propos"},
    {kCmdZoomIn, u"Agrandir l'aperçu"},
    {kCmdZoomOut, u"Réduire l'aperçu"},
};

}  // namespace orbisol
