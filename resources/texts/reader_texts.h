// Words and sentences of rules and dates, numbers 57xx.
#pragma once

#include "resources/texts/text_entry.h"

namespace orbisol {

inline constexpr TextEntry kReaderTexts[] = {
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
    {kTextReaderLittleWords,
     u"le,la,les,l,de,des,du,d,en,au,aux,a,et,ce,cet,cette,date,calendrier,grâce,république,française,"
     u"une indivisible"},
    {kTextReaderMonths,
     u"janvier,janv,jan|février,févr,fév,febvrier|mars|avril,avr,apvril|mai,may|juin,juing|juillet,juil,jul|"
     u"août,aoust|"
     u"septembre,septemb|octobre,oct|novembre,nov|décembre,déc"},
    {kTextReaderWeekdays,
     u"lundi,lun|mardi|mercredi,mer,merc|jeudi,jeu|vendredi,ven,vendr|samedi,sam|dimanche,dim"},
    {kTextReaderMarch, u"mar"},
    {kTextReaderSeptember, u"sept"},
    {kTextReaderNumbers,
     u"un,une,unième,premier,première|deux,deuxième,second,seconde|trois,troisième|quatre,quatrième|"
     u"cinq,cinquième|six,sixième|septième|huit,huitième|neuf,neuvième|dix,dixième|onze,onzième|"
     u"douze,douzième|treize,treizième|quatorze,quatorzième|quinze,quinzième|seize,seizième|"
     u"vingt,vingts,vingtième|trente,trentième|quarante|cinquante|soixante|cent,cents,cens|mille,mil"},
    {kTextReaderDays, u"jour,jours"},
    {kTextReaderWeeks, u"semaine,semaines,sem,s,w"},
    {kTextReaderMonthsAsUnit, u"mois"},
    {kTextReaderYears, u"an,ans,année,années"},
    {kTextReaderIn, u"dans"},
    {kTextReaderAgo, u"il y,y"},
    {kTextReaderTodays,
     u"avant hier|hier|aujourd hui,jourd hui,jourd huy,cejourd hui,cejourd huy,ce jour|demain|après demain"},
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
};

}  // namespace orbisol
