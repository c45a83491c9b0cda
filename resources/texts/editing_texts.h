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
     u"Le calendrier «\u00A0%s\u00A0» a été modifié par un autre programme depuis son ouverture.\n\n"
     u"Le fichier %s contient ces autres modifications\u00A0; les vôtres ne sont pas encore enregistrées.\n\n"
     u"Garder les deux\u00A0: le vôtre est enregistré sous le nom «\u00A0%s\u00A0».\n"
     u"Recharger\u00A0: celles du fichier sont affichées\u00A0; les vôtres restent dans les versions "
     u"précédentes.\n"
     u"Remplacer\u00A0: le vôtre remplace l'autre, dont une copie reste à côté (.bak)."},
    {kTextCalendarChangedButtons, u"Garder les deux|Recharger|Remplacer"},
    {kTextCalendarNotWritten,
     u"Le calendrier «\u00A0%s\u00A0» n'a pas été enregistré.\n\n"
     u"Le fichier %s est resté tel qu'il était\u00A0; vos modifications ne sont encore que dans le "
     u"programme."},
    {kTextCalendarNotMade,
     u"Le calendrier «\u00A0%s\u00A0» n'a pas été enregistré.\n\n"
     u"Le fichier %s n'existe pas\u00A0; vos modifications ne sont encore que dans le programme."},
    {kTextCalendarNotWrittenButtons, u"Enregistrer sous «\u00A0%s\u00A0»|Réessayer"},
    {kTextCalendarNotSynced,
     u"Le calendrier «\u00A0%s\u00A0» est enregistré, mais le disque ne l'a pas confirmé.\n\n"
     u"Le fichier %s contient vos modifications\u00A0; une coupure de courant pourrait encore les faire "
     u"perdre."},
    {kTextChangesNotKept,
     u"Vos modifications n'ont pas pu être conservées parmi les versions précédentes.\n\n"
     u"Si vous rechargez le calendrier «\u00A0%s\u00A0», elles sont perdues."},
    {kTextChangesNotKeptButtons, u"Garder les deux|Recharger quand même"},
    {kTextImportHolidays,
     u"Choisissez un calendrier pour voir sa description et ses jours.|"
     u"Ce calendrier ne peut pas être lu.|Ce calendrier n'a pas de description.|Jours de %1\u00A0:|"
     u"Aucun calendrier public n'est installé.|Aucun calendrier ne porte ce nom."},
    {kTextManyPersonalEvents,
     u"Le calendrier «\u00A0%s\u00A0» contient %d événements personnels.\n\n"
     u"Ils seront ajoutés aux vôtres\u00A0; «\u00A0Annuler\u00A0» dans la fenêtre des événements les retire "
     u"d'un seul "
     u"coup."},
    {kTextManyPersonalEventsButton, u"Importer"},
    {kTextDifference,
     u"Revient\u00A0: %s|Disparaît\u00A0: %s|jour férié «\u00A0%s\u00A0», %s|événement «\u00A0%s\u00A0», "
     u"%s|vacances «\u00A0%s\u00A0», %s|"
     u"vacances %s|L'ordre des événements et des vacances change.|"
     u"L'apparence change\u00A0: couleurs, police ou image.|"
     u"Les règles du calendrier changent\u00A0: réforme, années civiles ou semaines.|"
     u"La description du calendrier change.|Aucune différence avec le calendrier actuel."},
    {kTextNameFaults,
     u"Donnez un nom au calendrier.|Ce nom contient un caractère invisible.|"
     u"Ce nom ne convient pas\u00A0: il est trop long, ou contient «\u00A0/\u00A0», «\u00A0\\\u00A0» ou un "
     u"caractère de commande.|"
     u"Les noms qui finissent par «\u00A0_public\u00A0» sont réservés aux calendriers fournis.|"
     u"Un calendrier porte déjà ce nom."},
    {kTextCalendarGone,
     u"Le calendrier «\u00A0%s\u00A0» n'existe plus.\n\nLe fichier %s a été supprimé ou renommé par un autre "
     u"programme."},
    {kTextCalendarUnreadable,
     u"Le calendrier «\u00A0%s\u00A0» ne peut pas être lu.\n\nVérifiez les droits du fichier %s."},
    {kTextCalendarExists,
     u"Un calendrier «\u00A0%s\u00A0» existe déjà\u00A0; il est resté tel qu'il était.\n\nSon fichier\u00A0: "
     u"%s"},
    {kTextChoiceNotStored,
     u"Le calendrier «\u00A0%s\u00A0» est ouvert, mais ce choix n'a pas pu être enregistré dans les "
     u"réglages.\n\n"
     u"Au prochain démarrage, Orbisol ouvrira encore le calendrier précédent."},
    {kTextCalendarNotRenamed,
     u"Le calendrier «\u00A0%s\u00A0» n'a pas été renommé.\n\nLe fichier %s est resté tel qu'il était."},
    {kTextOldNameStays,
     u"Le calendrier a son nouveau nom, mais «\u00A0%s\u00A0» existe encore.\n\n"
     u"Un autre programme a modifié le fichier %s, ou il ne peut pas être supprimé."},
    {kTextCalendarNotDeleted,
     u"Le calendrier «\u00A0%s\u00A0» n'a pas été supprimé.\n\nLe fichier %s n'a pas pu être mis à la "
     u"corbeille."},
    {kTextDeleteCalendar, u"Mettre le calendrier «\u00A0%s\u00A0» à la corbeille\u00A0?"},
    {kTextDeleteCalendarAndVersions,
     u"Mettre le calendrier «\u00A0%s\u00A0» à la corbeille\u00A0?\n\nSes versions précédentes y vont avec "
     u"lui."},
    {kTextDeleteCalendarButton, u"Mettre à la corbeille"},
    {kTextCopyAmongCalendars,
     u"Ce dossier est celui des calendriers\u00A0: une copie y deviendrait un calendrier de plus.\n\n"
     u"Choisissez un autre dossier. Rien n'a été écrit dans %s."},
    {kTextCopyNotWritten, u"La copie n'a pas pu être écrite.\n\nFichier\u00A0: %s"},
    {kTextVersionGone, u"Cette version du calendrier «\u00A0%s\u00A0» n'existe plus."},
    {kTextVersionNotRestored,
     u"La version n'a pas été restaurée.\n\nLe calendrier «\u00A0%s\u00A0» est resté tel qu'il était\u00A0; "
     u"son fichier, "
     u"%s, "
     u"ne peut pas être remplacé."},
    {kTextChangedMeanwhile,
     u"Le calendrier «\u00A0%s\u00A0» a été modifié entre-temps par un autre programme\u00A0; rien n'a été "
     u"remplacé.\n\n"
     u"Les différences sont maintenant celles avec le nouvel état du fichier %s."},
    {kTextNotKeptBeforeRestore,
     u"Vos modifications non enregistrées n'ont pas pu être conservées parmi les versions précédentes.\n\n"
     u"Si vous restaurez cette version du calendrier «\u00A0%s\u00A0», elles sont perdues."},
    {kTextRestoreAllTheSame, u"Restaurer quand même"},
    {kTextVersions,
     u"&Versions précédentes de «\u00A0%s\u00A0»\u00A0:|%s, %d h %s|"
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
    {kTextNameTooLong, u"L'intitulé peut compter %d caractères\u00A0; celui-ci en compte %d."},
    {kTextPeriodRefusals,
     u"Entrez une date.|La fin précède le début.|Une période dure au moins deux jours.|"
     u"Avant notre ère, une période est enregistrée année par année\u00A0: celle-ci n'aurait qu'un seul jour "
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
     u"Ajouter «\u00A0%s\u00A0»|Modifier «\u00A0%s\u00A0»|Supprimer «\u00A0%s\u00A0»|Supprimer %d "
     u"lignes|Monter «\u00A0%s\u00A0»|"
     u"Descendre «\u00A0%s\u00A0»|Importer des jours fériés"},
    {kTextUndoTips,
     u"Annuler (Ctrl+Z)|Rétablir (Ctrl+Y)|Annuler\u00A0: %s (Ctrl+Z)|Rétablir\u00A0: %s (Ctrl+Y)"},
    {kTextUnsavedChanges,
     u"Des modifications ne sont pas enregistrées.\nVoulez-vous les enregistrer\u00A0?|Enregistrer|"
     u"Ne pas enregistrer"},
    {kTextPeriodColumns, u"Intitulé|Du|Au|Jours|Remarque"},
    {kTextPeriodForm, u"Nouvelle période|Modifier la période"},
    {kTextEmptyPeriods,
     u"Aucune période de vacances.\nFaites glisser la souris sur des jours du calendrier pour en ajouter "
     u"une,\nou remplissez les champs ci-contre.|Aucune période ne correspond au filtre."},
    {kTextPeriodLength, u"Du %s au %s\u00A0: %d jours."},
    {kTextOverlap, u"chevauche «\u00A0%s\u00A0»|chevauche une autre période"},
    {kTextEventAdded, u"«\u00A0%s\u00A0» est ajouté\u00A0: %s."},
    {kTextMoveTips,
     u"L'ordre se change sans tri ni filtre\u00A0: cliquez sur l'en-tête jusqu'à ce que sa flèche "
     u"disparaisse.|"
     u"L'ordre décide des noms réunis sur un même jour et du titre des périodes qui se chevauchent."},
    {kTextNoDayInYear, u"aucun jour"},
    {kTextEventFilters, u"Tous les événements|Jours fériés|Événements personnels"},
    {kTextAlways, u"toujours"},
    {kTextDateLabels, u"&Date\u00A0:|Mois\u00A0:"},
    {kTextLongestFallsOn,
     u"Tombe le 28 novembre en 2024, le 27 novembre en 2025, le 26 novembre en 2026 et en d'autres années."},
    {kTextLongestLength,
     u"Du mercredi 30 septembre 2026 au mercredi 30 décembre 2026\u00A0: 100 jours.\nChevauche "
     u"«\u00A0Vacances\u00A0».\n"},
    {kTextGoToDate,
     u"Cette date est comprise ainsi\u00A0:|Cette date peut être\u00A0:|Vouliez-vous dire\u00A0:"},
    {kTextReadingLine, u"%s — %s"},
    {kTextFindDay,
     u"Aucun jour ne contient ce texte.|1 résultat.|%s résultats.|Recherche arrêtée\u00A0: %s résultats.|"
     u"%s premiers résultats\u00A0; «\u00A0Suivant\u00A0» et «\u00A0Précédent\u00A0» trouvent les autres.|"
     u"Aucun autre jour ensuite.|Aucun autre jour auparavant."},
};

}  // namespace orbisol
