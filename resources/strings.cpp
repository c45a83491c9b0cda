#include "resources/strings.h"

#include <algorithm>
#include <iterator>

#include "resources/command_ids.h"

namespace orbisol {
namespace {

struct Entry {
  int id;
  std::u16string_view text;
};

constexpr bool ById(const Entry& a, const Entry& b) { return a.id < b.id; }

constexpr Entry kStrings[] = {
    {kCmdQuit, u"Quitter le programme\nQuitter"},
    {kTextPrevious, u"Clic=mois précédent\nCtrl+clic=-1 an\nMaj.+clic=-10 ans\nCtrl+Maj.+clic=-100 ans"},
    {kTextNext, u"Clic=mois suivant\nCtrl+clic=+1 an\nMaj.+clic=+10 ans\nCtrl+Maj.+clic=+100 ans"},
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
    {kTextPictureFilter,
     u"Toutes les images supportées (*.tif;*.tiff;*.jpg;*.jpeg;*png;*.gif;*.bmp)|"
     u"*.tif;*.tiff;*.jpg;*.jpeg;*png;*.gif;*.bmp|"},
    {kTextEras, u"%d AUC | %d av. JC"},
    {kTextNewMoon, u"Nouvelle lune"},
    {282, u"Premier quartier de lune"},
    {283, u"Pleine lune"},
    {284, u"Dernier quartier de lune"},
    {kTextWeek, u"s."},
    {kTextColorCaptions,
     u"Couleur du texte d'en-tête|Couleur du fond d'en-tête|Couleur de jour normal|Couleur d'arrière-plan|"
     u"Couleur du jour férié|Couleur d'arrière-plan du jour férié|Couleur du jour de l'événement|"
     u"Couleur d'arrière-plan de l'événement|Couleur du jour de vacances|"
     u"Couleur d'arrière-plan du jour de vacances|Couleur du cadre actif|Couleur du texte grisé|"
     u"Couleur du texte du titre du mois|Couleur d'arrière-plan du calendrier|"
     u"Couleur du numéro de semaine"},
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
    {kTextDatePatterns, u"MM/JJ/AAAA|JJ/MM/AAAA|AAAA/MM/JJ|"},
    {kCmdAbout, u"Afficher la version du programme\nÀ propos"},
    {kTextFrenchMonths,
     u"janvier|février|mars|avril|mai|juin|juillet|août|septembre|octobre|novembre|décembre"},
    {kTextFrenchMonthAbbrevs, u"janv.|févr.|mars|avr.|mai|juin|juil.|août|sept.|oct.|nov.|déc."},
    {kTextFrenchWeekdays, u"lundi|mardi|mercredi|jeudi|vendredi|samedi|dimanche"},
    {kTextFrenchWeekdayAbbrevs, u"lun.|mar.|mer.|jeu.|ven.|sam.|dim."},
    {kTextRepublicanMonths,
     u"vendémiaire|brumaire|frimaire|nivose|pluviose|ventose|germinal|floréal|prairial|messidor|"
     u"thermidor|fructidor|Complémentaires"},
    {kTextDecadeDays, u"Primidi|Duodi|Tridi|Quartidi|Quintidi|Sextidi|Septidi|Octidi|Nonidi|Décadi"},
    {kTextComplementaryDays,
     u"Jour de la Vertu|Jour du Génie|Jour du Travail|Jour de l'Opinion|Jour de la Récompense|"
     u"Jour de la Révolution"},
    {kTextRepublicanDay, u"%s %d %s an %d\n (an %s)"},
    {kTextRepublicanComplementaryDay, u"%s an %d\n (an %s)"},
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
     u"%de"},
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
    {kCmdGoBack, u"Revenir à la date affichée auparavant\nDate précédente (Alt+Gauche)"},
    {kCmdGoForward, u"Retourner à la date affichée ensuite\nDate suivante (Alt+Droite)"},
    {kCmdGoToToday, u"Revenir à la date d'aujourd'hui\nAujourd'hui (Alt+Début)"},
    {kCmdGoToDate, u"Aller à une date, écrite comme vous en avez l'habitude\nAller à une date (Ctrl+G)"},
    {kCmdFind, u"Chercher les jours dont le texte contient un mot\nRechercher (Ctrl+F)"},
    {kCmdFindNext, u"Aller au prochain jour dont le texte contient le mot cherché\nSuivant (F3)"},
    {kCmdFindPrevious,
     u"Aller au dernier jour, avant celui-ci, dont le texte contient le mot cherché\nPrécédent (Maj+F3)"},
    {kCmdNewCalendar, u"Créer un calendrier\nNouveau calendrier (Ctrl+N)"},
    {kTextCalendarChanged,
     u"Le calendrier « %s » a été modifié par un autre programme depuis son ouverture.\n\n"
     u"Le fichier %s contient ces autres modifications ; les vôtres ne sont pas encore enregistrées.\n\n"
     u"Garder les deux : le vôtre est enregistré sous le nom « %s ».\n"
     u"Recharger : celles du fichier sont affichées ; les vôtres restent dans les versions précédentes.\n"
     u"Remplacer : le vôtre remplace l'autre, dont une copie reste à côté (.bak)."},
    {kTextCalendarChangedButtons, u"Garder les deux|Recharger|Remplacer"},
    {kTextCalendarNotWritten,
     u"Le calendrier « %s » n'a pas été enregistré.\n\n"
     u"Le fichier %s est resté tel qu'il était ; vos modifications ne sont encore que dans le programme."},
    {kTextCalendarNotMade,
     u"Le calendrier « %s » n'a pas été enregistré.\n\n"
     u"Le fichier %s n'existe pas ; vos modifications ne sont encore que dans le programme."},
    {kTextCalendarNotWrittenButtons, u"Enregistrer sous « %s »|Réessayer"},
    {kTextCalendarNotSynced,
     u"Le calendrier « %s » est enregistré, mais le disque ne l'a pas confirmé.\n\n"
     u"Le fichier %s contient vos modifications ; une coupure de courant pourrait encore les faire perdre."},
    {kTextChangesNotKept,
     u"Vos modifications n'ont pas pu être conservées parmi les versions précédentes.\n\n"
     u"Si vous rechargez le calendrier « %s », elles sont perdues."},
    {kTextChangesNotKeptButtons, u"Garder les deux|Recharger quand même"},
    {kTextImportHolidays,
     u"Choisissez un calendrier pour voir sa description et ses jours.|"
     u"Ce calendrier ne peut pas être lu.|Ce calendrier n'a pas de description.|Jours de %1 :|"
     u"Aucun calendrier public n'est installé.|Aucun calendrier ne porte ce nom."},
    {kTextManyPersonalEvents,
     u"Le calendrier « %s » contient %d événements personnels.\n\n"
     u"Ils seront ajoutés aux vôtres ; « Annuler » dans la fenêtre des événements les retire d'un seul "
     u"coup."},
    {kTextManyPersonalEventsButton, u"Importer"},
    {kTextDifference,
     u"Revient : %s|Disparaît : %s|jour férié « %s », %s|événement « %s », %s|vacances « %s », %s|"
     u"vacances %s|L'ordre des événements et des vacances change.|"
     u"L'apparence change : couleurs, police ou image.|"
     u"Les règles du calendrier changent : réforme, années civiles ou semaines.|"
     u"La description du calendrier change.|Aucune différence avec le calendrier actuel."},
    {kTextNameFaults,
     u"Donnez un nom au calendrier.|Ce nom contient un caractère invisible.|"
     u"Ce nom ne convient pas : il est trop long, ou contient « / », « \\ » ou un caractère de commande.|"
     u"Les noms qui finissent par « _public » sont réservés aux calendriers fournis.|"
     u"Un calendrier porte déjà ce nom."},
    {kTextCalendarGone,
     u"Le calendrier « %s » n'existe plus.\n\nLe fichier %s a été supprimé ou renommé par un autre "
     u"programme."},
    {kTextCalendarUnreadable,
     u"Le calendrier « %s » ne peut pas être lu.\n\nVérifiez les droits du fichier %s."},
    {kTextCalendarExists,
     u"Un calendrier « %s » existe déjà ; il est resté tel qu'il était.\n\nSon fichier : %s"},
    {kTextChoiceNotStored,
     u"Le calendrier « %s » est ouvert, mais ce choix n'a pas pu être enregistré dans les réglages.\n\n"
     u"Au prochain démarrage, Orbisol ouvrira encore le calendrier précédent."},
    {kTextCalendarNotRenamed,
     u"Le calendrier « %s » n'a pas été renommé.\n\nLe fichier %s est resté tel qu'il était."},
    {kTextOldNameStays,
     u"Le calendrier a son nouveau nom, mais « %s » existe encore.\n\n"
     u"Un autre programme a modifié le fichier %s, ou il ne peut pas être supprimé."},
    {kTextCalendarNotDeleted,
     u"Le calendrier « %s » n'a pas été supprimé.\n\nLe fichier %s n'a pas pu être mis à la corbeille."},
    {kTextDeleteCalendar, u"Mettre le calendrier « %s » à la corbeille ?"},
    {kTextDeleteCalendarAndVersions,
     u"Mettre le calendrier « %s » à la corbeille ?\n\nSes versions précédentes y vont avec lui."},
    {kTextDeleteCalendarButton, u"Mettre à la corbeille"},
    {kTextCopyAmongCalendars,
     u"Ce dossier est celui des calendriers : une copie y deviendrait un calendrier de plus.\n\n"
     u"Choisissez un autre dossier. Rien n'a été écrit dans %s."},
    {kTextCopyNotWritten, u"La copie n'a pas pu être écrite.\n\nFichier : %s"},
    {kTextVersionGone, u"Cette version du calendrier « %s » n'existe plus."},
    {kTextVersionNotRestored,
     u"La version n'a pas été restaurée.\n\nLe calendrier « %s » est resté tel qu'il était ; son fichier, "
     u"%s, "
     u"ne peut pas être remplacé."},
    {kTextChangedMeanwhile,
     u"Le calendrier « %s » a été modifié entre-temps par un autre programme ; rien n'a été remplacé.\n\n"
     u"Les différences sont maintenant celles avec le nouvel état du fichier %s."},
    {kTextNotKeptBeforeRestore,
     u"Vos modifications non enregistrées n'ont pas pu être conservées parmi les versions précédentes.\n\n"
     u"Si vous restaurez cette version du calendrier « %s », elles sont perdues."},
    {kTextRestoreAllTheSame, u"Restaurer quand même"},
    {kTextVersions,
     u"&Versions précédentes de « %s » :|%s, %d h %s|"
     u"Aucune version précédente.\n\nUne version est conservée chaque fois que le calendrier est "
     u"enregistré."},
    {kTextVersionHolds,
     u"aucun jour férié|1 jour férié|%d jours fériés|aucun événement|1 événement|%d événements|"
     u"aucune période|1 période|%d périodes"},
    {kTextChooseCalendar, u"Calendrier ouvert|Le calendrier ouvert ne peut pas être supprimé."},
    {kTextExportCopy, u"Exporter une copie|Calendriers (*.xml)"},
    {kTextEventRefusals,
     u"Donnez un intitulé à cet événement.|%s n'a que %d jours.|La date doit être au plus tôt le 2 du mois.|"
     u"La fin précède le début."},
    {kTextNameTooLong, u"L'intitulé peut compter %d caractères ; celui-ci en compte %d."},
    {kTextPeriodRefusals,
     u"Entrez une date.|La fin précède le début.|Une période dure au moins deux jours.|"
     u"Avant notre ère, une période est enregistrée année par année : celle-ci n'aurait qu'un seul jour "
     u"en %d, or il en faut au moins deux.|"
     u"Une de ces dates ne peut pas borner une période dans ce calendrier."},
    {kTextEventColumns, u"Intitulé|Jour|En %d|Nature"},
    {kTextEventKinds, u"Jour férié|Personnel"},
    {kTextKindHelp,
     u"Jour du mois correspondant à l'événement.|"
     u"Nombre de jour séparant de Pâques romain (-99 à +99).|"
     u"Nombre de jours séparant de Pâques orthodoxe (-99 à 99).|"
     u"Numéro d'ordre et jour de la semaine pour l'événement.|"
     u"Jour de la semaine précédant une date (ex: mercredi avant le 23 inclus).|"
     u"Jour de la semaine suivant une date (ex: samedi à partir du 20 inclus).|"
     u"Jour du mois (si sam. ou dim., le jour est repoussé au lundi qui suit).|"
     u"Jour du mois (si dim., le jour est reporté au lendemain)."},
    {kTextEventForm, u"Nouvel événement|Modifier l'événement"},
    {kTextEmptyEvents,
     u"Aucun événement.\nDouble-cliquez sur un jour du calendrier pour en ajouter un,\n"
     u"ou remplissez les champs ci-contre.|Aucun événement ne correspond au filtre."},
    {kTextListSteps,
     u"Ajouter « %s »|Modifier « %s »|Supprimer « %s »|Supprimer %d lignes|Monter « %s »|"
     u"Descendre « %s »|Importer des jours fériés"},
    {kTextUndoTips, u"Annuler (Ctrl+Z)|Rétablir (Ctrl+Y)|Annuler : %s (Ctrl+Z)|Rétablir : %s (Ctrl+Y)"},
    {kTextUnsavedChanges,
     u"Des modifications ne sont pas enregistrées.\nVoulez-vous les enregistrer ?|Enregistrer|"
     u"Ne pas enregistrer"},
    {kTextPeriodColumns, u"Intitulé|Du|Au|Jours|Remarque"},
    {kTextPeriodForm, u"Nouvelle période|Modifier la période"},
    {kTextEmptyPeriods,
     u"Aucune période de vacances.\nFaites glisser la souris sur des jours du calendrier pour en ajouter "
     u"une,\nou remplissez les champs ci-contre.|"},
    {kTextPeriodLength, u"Du %s au %s : %d jours."},
    {kTextOverlap, u"chevauche « %s »|chevauche une autre période"},
    {kTextEventAdded, u"« %s » est ajouté : %s."},
    {kTextMoveTips,
     u"L'ordre se change sans tri ni filtre : cliquez sur l'en-tête jusqu'à ce que sa flèche disparaisse.|"
     u"L'ordre décide des noms réunis sur un même jour et du titre des périodes qui se chevauchent."},
    {kTextNoDayInYear, u"aucun jour"},
    {kTextEventFilters, u"Tous les événements|Jours fériés|Événements personnels"},
    {kTextAlways, u"toujours"},
    {kTextDateLabels, u"&Date :|Mois :"},
    {kTextLongestFallsOn,
     u"Tombe le 28 novembre en 2024, le 27 novembre en 2025, le 26 novembre en 2026 et en d'autres années."},
    {kTextLongestLength,
     u"Du mercredi 30 septembre 2026 au mercredi 30 décembre 2026 : 100 jours.\nChevauche « Vacances ».\n"},
    {kTextGoToDate, u"Cette date est comprise ainsi :|Cette date peut être :|Vouliez-vous dire :"},
    {kTextReadingLine, u"%s — %s"},
    {kTextFindDay,
     u"Aucun jour ne contient ce texte.|1 résultat.|%s résultats.|Recherche arrêtée : %s résultats.|"
     u"%s premiers résultats ; « Suivant » et « Précédent » trouvent les autres.|"
     u"Aucun autre jour ensuite.|Aucun autre jour auparavant."},
    {kTextRuleDays,
     u"le %s|le %s, ou le lundi suivant s'il tombe un week-end|le %s, ou le lendemain s'il tombe un "
     u"dimanche"},
    {kTextNthWeekday, u"le %s %s de %s|le %s %s d'%s"},
    {kTextWeekdayBesideDate, u"le dernier %s avant le %s inclus|le premier %s à partir du %s"},
    {kTextRomanEasterDays,
     u"le jour de Pâques|le lendemain de Pâques|la veille de Pâques|%d jours après Pâques|"
     u"%d jours avant Pâques"},
    {kTextOrthodoxEasterDays,
     u"le jour de la Pâque orthodoxe|le lendemain de la Pâque orthodoxe|la veille de la Pâque orthodoxe|"
     u"%d jours après la Pâque orthodoxe|%d jours avant la Pâque orthodoxe"},
    {kTextNoRuleDay, u"aucun jour"},
    {kTextYear, u"%d|l'an %d"},
    {kTextValidityYears, u"depuis %s|jusqu'en %s|de %s à %s|en %s"},
    {kTextValidityDates, u"depuis le %s|jusqu'au %s|du %s au %s|le %s seulement"},
    {kTextOddValidity, u"bornes : %s et %s"},
    {kTextNeverValid, u"jamais valable"},
    {kTextPeriodDays, u"du %s au %s|1er"},
    {kTextFallsOn, u"Tombe %s.|%s en %s|aucun jour en %s|Ne tombe aucun jour en %s."},
    {kTextList, u", | et "},
    {kTextReaderLittleWords, u"le,la,les,l,de,des,du,d,en,au,aux,a,et,ce,cet,cette,date,calendrier,grâce"},
    {kTextReaderMonths,
     u"janvier,janv,jan|février,févr,fév|mars|avril,avr|mai|juin|juillet,juil,jul|août,aout|"
     u"septembre,septemb|octobre,oct,viiibre|novembre,nov,ixbre|décembre,déc,xbre"},
    {kTextReaderWeekdays,
     u"lundi,lun|mardi|mercredi,mer,merc|jeudi,jeu|vendredi,ven,vendr|samedi,sam|dimanche,dim"},
    {kTextReaderMarch, u"mar"},
    {kTextReaderSeptember, u"sept"},
    {kTextReaderNumbers,
     u"un,une,premier,première|deux,deuxième,second,seconde|trois,troisième|quatre,quatrième|cinq,cinquième|"
     u"six,sixième|septième|huit,huitième|neuf,neuvième|dix,dixième|onze,onzième|douze|treize|quatorze|"
     u"quinze|seize|vingt,vingts|trente|quarante|cinquante|soixante|cent,cents|mille,mil"},
    {kTextReaderDays, u"jour,jours"},
    {kTextReaderWeeks, u"semaine,semaines,sem,s,w"},
    {kTextReaderMonthsAsUnit, u"mois"},
    {kTextReaderYears, u"an,ans,année,années"},
    {kTextReaderIn, u"dans"},
    {kTextReaderAgo, u"il y,y"},
    {kTextReaderTodays, u"avant hier|hier|aujourd hui,ce jour|demain|après demain"},
    {kTextReaderNext, u"prochain,prochaine,suivant"},
    {kTextReaderLast, u"dernier,dernière,passé"},
    {kTextReaderFeasts,
     u"mardi gras|mercredi cendres,cendres|rameaux,dimanche rameaux|jeudi saint|vendredi saint|samedi saint|"
     u"Pâques,dimanche Pâques,Pâque|lundi Pâques|quasimodo,dimanche quasimodo|ascension,jeudi ascension|"
     u"pentecôte,dimanche pentecôte|lundi pentecôte|trinité,dimanche trinité|fête dieu"},
    {kTextReaderOrthodox, u"orthodoxe,orthodoxes"},
    {kTextReaderRomanDays, u"calendes|nones|ides"},
    {kTextReaderDecadeDays, u"primidi|duodi|tridi|quartidi|quintidi|sextidi|septidi|octidi|nonidi|décadi"},
    {kTextReaderRepublicanMonths,
     u"vendémiaire,vend,vendém|brumaire,brum|frimaire,frim|nivôse,niv|pluviôse,pluv|ventôse,vent|"
     u"germinal,germ|floréal,flor|prairial,prair|messidor,mess|thermidor,therm,fervidor|fructidor,fruct"},
    {kTextReaderComplementary,
     u"complémentaire,complémentaires,jour complémentaire,jours complémentaires,sans culottide,"
     u"sans culottides,sansculottide"},
    {kTextReaderComplementaryDays,
     u"jour vertu,fête vertu,vertu|jour génie,fête génie,génie|jour travail,fête travail,travail|"
     u"jour opinion,fête opinion,opinion|jour récompense,jour récompenses,fête récompenses,récompenses|"
     u"jour révolution,fête révolution,révolution"},
    {kTextReaderDayNumber, u"jj,jd,jj n,jd n,jour julien,jour julien n,jour julien no,jours juliens"},
    {kTextReaderJulian, u"j,julien,julienne,ancien style,vieux style,a s,v s"},
    {kTextReaderGregorian, u"g,grégorien,grégorienne,nouveau style,n s"},
    {kTextReaderBeforeEra,
     u"av j c,av jc,avant j c,avant jc,av jésus christ,avant jésus christ,avant notre ère,av n è,"
     u"avant n è,avant ère chrétienne"},
    {kTextReaderInEra,
     u"ap j c,ap jc,apr j c,apr jc,après j c,après jc,ap jésus christ,après jésus christ,notre ère,n è,"
     u"ère chrétienne"},
    {kTextReaderCivilYear, u"année civile,an civil"},
    {kTextReadingDate, u"%s %s %s %s| (%d av. J.-C.)| (année civile %s)|, julien|, grégorien|1er|de l'an %s"},
    {kTextReadingNotes,
     u"lu dans l'ordre %s|siècle le plus proche|%s %s %s, julien|%s %s %s, grégorien|"
     u"le %s %s %s n'existe pas ; lu comme date julienne|jour julien n° %d|%de jour de l'année|"
     u"semaine %d de %s|%s %s an %s"},
    {kTextReadingWeekdays, u"le %s est un %s"},
    {kTextReadingOrders, u"mois/jour/année|jour/mois/année|année/mois/jour"},
    {kTextReadingFeasts,
     u"Pâques|lendemain de Pâques (%s)|%d jours après Pâques (%s)|veille de Pâques (%s)|"
     u"%d jours avant Pâques (%s)"},
    {kTextReaderRefusals,
     u"Écrivez une date, par exemple : 14 juillet 1789.|Ces mots ne forment pas une date.|"
     u"« %s » n'est pas compris.|Ces indications se contredisent.|"
     u"Il n'y a pas d'année 0 avant ou après Jésus-Christ.|"
     u"Les dates vont du 1er janvier −3999 au 31 décembre 3999 (jours juliens %d à %d).|"
     u"Les mois vont de 1 à 12.|Pâques se calcule à partir de l'an 326.|"
     u"L'année %s n'a pas de semaine %d.|L'année %s a %d jours.|"
     u"Les années républicaines vont de l'an 1 à l'an 2300.|"
     u"Les mois républicains ont 30 jours, suivis de 5 ou 6 jours complémentaires.|"
     u"L'an %d n'a que cinq jours complémentaires.|Cette date n'existe pas : %s %s a %d jours."},
    {kCmdEditVacations, u"Définir les périodes de vacances\nPériodes de vacances"},
    {kCmdChooseCalendar, u"Ouvrir ou créer un autre calendrier\nAutre calendrier (Ctrl+O)"},
    {kCmdHelpIndex, u"Afficher l'index de l'aide\nIndex de l'aide"},
    {kCmdHelpContents, u"Afficher le sommaire de l'aide\nAide (F1)"},
    {kCmdToggleToolBar, u"Afficher ou masquer la barre d'outils\nBarre d'outils"},
    {kCmdToggleStatusBar, u"Afficher ou masquer la barre d'état\nBarre d'état"},
};
static_assert(std::is_sorted(std::begin(kStrings), std::end(kStrings), ById));

}  // namespace

std::u16string_view StringText(int id) {
  const auto* const found = std::lower_bound(std::begin(kStrings), std::end(kStrings), Entry{id, {}}, ById);
  if (found == std::end(kStrings) || found->id != id) return {};
  return found->text;
}

}  // namespace orbisol
