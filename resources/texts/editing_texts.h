// Texts of commands, numbers 52xx, and of editing events, periods and calendars, 53xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kEditingTexts[] = {
    {kCmdGoBack, u"Revenir à la date affichée auparavant\nDate précédente (Alt+Gauche)"},
    {kCmdGoForward, u"Retourner à la date affichée ensuite\nDate suivante (Alt+Droite)"},
    {kCmdGoToToday, u"Revenir à la date d'aujourd'hui\nAujourd'hui (Alt+Début)"},
    {kCmdGoToDate, u"Aller à une date, écrite comme vous en avez l'habitude\nAller à une date (Ctrl+G)"},
    {kCmdFind, u"Chercher les jours dont le texte contient un mot\nRechercher (Ctrl+F)"},
    {kCmdFindNext, u"Aller au prochain jour dont le texte contient le mot cherché\nSuivant (F3)"},
    {kCmdFindPrevious,
     u"Aller au dernier jour, avant celui-ci, dont le texte contient le mot cherché\nPrécédent (Maj+F3)"},
    {kCmdNewCalendar, u"Créer un calendrier\nNouveau calendrier (Ctrl+N)"},
    {kCmdPrintJulian, u"Imprimer aussi la date du calendrier julien"},
    {kCmdPrintRepublican, u"Imprimer aussi la date du calendrier républicain"},
    {kCmdExportPdf, u"Écrire les pages dans un fichier PDF\nExporter en PDF (Ctrl+E)"},
    {kCmdPrintYears, u"Imprimer ou exporter la même période de plusieurs années"},
    {kCmdFitPage, u"Montrer la page entière\nPage entière (Ctrl+0)"},
    {kCmdFitWidth, u"Montrer la page sur toute la largeur\nPleine largeur (Ctrl+2)"},
    {kCmdActualSize, u"Montrer la page dans la taille du papier"},
    {kCmdFirstPage, u"Afficher la première page"},
    {kCmdLastPage, u"Afficher la dernière page"},
    {kCmdToggleCellTexts,
     u"Écrire les jours fériés et les événements dans les cases\nÉvénements dans les cases"},
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
     u"une,\nou remplissez les champs ci-contre.|Aucune période ne correspond au filtre."},
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
};

}  // namespace orbisol
