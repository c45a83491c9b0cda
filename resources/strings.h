// The one table of the texts that the program shows, by number; its ranges stand in resources/texts/. Several
// entries are lists whose items are separated by "|"; some hold placeholders for FormatText (core/text.h).
// Menus and dialogs have tables of their own.
#pragma once

#include <string_view>

namespace orbisol {

// The entries that have no command or control of the same number. Numbers below 5000 came with the calendar's
// data and menus; above it each part of the program has a range: 50xx names that the calendar speaks, 51xx
// the main window, the fields that dialogs share, help and about, 52xx commands, 53xx editing (events,
// periods, calendars), 54xx printing, 55xx the preferences, 56xx the holidays of other countries, 57xx how
// rules and dates are told and read.
enum TextId : int {
  kTextPrevious = 131,  // tips of the header's arrows
  kTextNext = 132,
  kTextRuleKinds = 137,      // one for each kind of rule
  kTextLongOrdinals = 138,   // from the first to the fourth, and the last
  kTextShortOrdinals = 139,  // the same
  kTextBrokenInstallation = 135,
  kTextPrintTitle = 278,
  kTextPictureFilter = 279,  // of a file dialog: caption, patterns
  kTextEras = 280,           // of a year before the first
  kTextNewMoon = 281,
  kTextFirstQuarter = 282,
  kTextFullMoon = 283,
  kTextLastQuarter = 284,
  kTextPageOfMonth = 288,   // caption of a printed page: the only one, by month and year
  kTextPageOfMonths = 289,  // page, count, first month and year, last month and year
  kTextWeek = 295,
  kTextColorCaptions = 297,   // one for each color, in the order of ColorTable()
  kTextCircleWidths = 298,    // from 1 on
  kTextCenturies = 299,       // ordinals from 1 to 19
  kTextTenthCenturies = 300,  // from 20 on by tens
  kTextCenturyTens = 301,     // the same as the first part of another ordinal
  kTextCenturyFirst = 302,    // its second part for 21, 31, 41
  kTextCentury = 303,
  kTextCenturyBeforeEra = 304,
  kTextOpenPicture = 305,      // title of the file dialog
  kTextPreviewElements = 306,  // in the order of PreviewElement, without the last
  kTextDatePatterns = 309,     // by Date::dateOrder

  kTextFrenchMonths = 5001,
  kTextFrenchMonthAbbrevs = 5002,
  kTextFrenchWeekdays = 5003,
  kTextFrenchWeekdayAbbrevs = 5004,
  kTextRepublicanMonths = 5011,
  kTextDecadeDays = 5012,
  kTextComplementaryDays = 5013,
  kTextRepublicanDay = 5014,
  kTextRepublicanComplementaryDay = 5015,

  kTextProgramName = 5100,
  kTextCalendarTitle = 5101,  // of the main window: the calendar's name
  kTextGregorianGroup = 5102,
  kTextJulianGroup = 5103,
  kTextRepublicanGroup = 5104,
  kTextDifferenceGroup = 5105,
  kTextShowGroup = 5106,
  kTextFirstDayGroup = 5107,
  kTextRepublicanEntry = 5108,
  kTextGo = 5109,
  kTextToday = 5110,
  kTextFirstDayRepublican = 5111,
  kTextFirstDayGregorian = 5112,
  kTextFirstDayEra = 5113,
  kTextFirstDayJulian = 5114,
  kTextJulianDayNumber = 5115,
  kTextProlepticGregorian = 5116,
  kTextKeepDate = 5117,        // tool tips of the button that remembers a date: not pressed, pressed
  kTextConverterNames = 5118,  // accessible names: day, month, year, date remembered, difference
  kTextCivilYearStart = 5120,  // by day and month, by month for its first day
  kTextDayCounts = 5121,
  kTextWeekAndDayCounts = 5122,
  kTextHeaderNames = 5123,  // accessible: header, previous, next, month, year, year editor
  kTextHeaderTips = 5124,   // of the month and of the year
  kTextToolBarName = 5125,
  kTextSilentInstance = 5126,  // at a start, when the first program does not answer
  kTextOpenAnyway = 5127,      // the button of that question
  kTextCountsInWords =
      5128,  // of a day in its civil year: number and days left; number 1; the last; number alone
  kTextErasInWords = 5129,    // of a year before the first: since the foundation of Rome, before the era
  kTextToolkitSource = 5130,  // texts that the toolkit leaves in English, and the same in French
  kTextToolkitFrench = 5131,
  kTextTakenBack = 5132,         // of a calendar that was put aside: its name then and now
  kTextStillAside = 5133,        // of one that could not be taken back: its name and its file
  kTextSessionHeld = 5134,       // where nothing can be kept and the session can be told to go on
  kTextDayOfMonth = 5140,        // by day and month, by month for its first day
  kTextMissingDate = 5141,       // a date that does not exist, and the one it counts as
  kTextRange = 5142,             // of days: a single one; first, last and length
  kTextDayKinds = 5143,          // public holiday, event, vacation; today
  kTextOfKind = 5144,            // goes on with a kind and its texts
  kTextWeekOf = 5145,            // week numbers: their title, and one of them
  kTextLeadsTo = 5146,           // a button, with month and year that it leads to
  kTextDateFaults = 5150,        // why a text is no date, in the order of DateFault, kNone left out
  kTextDateEdit = 5151,          // of a date field: the button, and what its drop-down is
  kTextPictureFaults = 5160,     // why a file is no picture, in the order of PictureFault, kNone left out
  kTextPictureChooser = 5161,    // accessible names of path and picture, the button, the empty path
  kTextHelp = 5170,              // of the help window: title, contents, index, filter, page, back, forward
  kTextVersion = 5180,           // in the about box: three numbers, system, bits
  kTextUsage = 5190,             // answer to --help
  kTextUnknownWord = 5191,       // of the command line, in one line
  kTextKeptPlaceholders = 5192,  // of the remembered date and of its distance, while these are empty
  kTextReform = 5193,            // notes over Julian months: before a reform, at it, without one
  kTextMonthList = 5194,
  kTextDaysOfPeriod = 5195,  // title, first and last day
  kTextSpokenLine = 5196,    // long date and text
  kTextCopy = 5197,          // in context menus
  kTextNextHoliday = 5198,   // in the status bar: date, names

  kTextCalendarChanged = 5300,            // its file, by somebody else: name, path, free name
  kTextCalendarChangedButtons = 5301,     // keep both, reload, replace
  kTextCalendarNotWritten = 5302,         // the file is as it was: name, path
  kTextCalendarNotMade = 5303,            // there is no file: name, path
  kTextCalendarNotWrittenButtons = 5304,  // save under the free name, try again
  kTextCalendarNotSynced = 5305,          // name, path
  kTextChangesNotKept = 5306,             // before a reload
  kTextChangesNotKeptButtons = 5307,      // keep both, reload all the same
  kTextImportHolidays = 5310,             // of the import: by ImportText
  kTextManyPersonalEvents = 5311,         // question: name of the calendar, number of events
  kTextManyPersonalEventsButton = 5312,
  kTextDifference = 5313,    // of two states of a calendar: by DifferenceText
  kTextNameFaults = 5314,    // why a name is refused, in the order of NameFault, kNone left out
  kTextCalendarGone = 5315,  // messages about a calendar's file: name, path
  kTextCalendarUnreadable = 5316,
  kTextCalendarExists = 5317,
  kTextChoiceNotStored = 5318,
  kTextCalendarNotRenamed = 5319,
  kTextOldNameStays = 5320,
  kTextCalendarNotDeleted = 5321,
  kTextDeleteCalendar = 5322,             // question: name
  kTextDeleteCalendarAndVersions = 5323,  // the same
  kTextDeleteCalendarButton = 5324,
  kTextCopyAmongCalendars = 5325,  // path
  kTextCopyNotWritten = 5326,      // path
  kTextVersionGone = 5327,         // name
  kTextVersionNotRestored = 5328,  // name, path
  kTextChangedMeanwhile = 5329,    // name, path
  kTextNotKeptBeforeRestore = 5330,
  kTextRestoreAllTheSame = 5331,
  kTextVersions = 5332,        // of the list of versions: by VersionText
  kTextVersionHolds = 5333,    // counts of holidays, events, periods: none, one, several of each
  kTextChooseCalendar = 5334,  // of the choice of a calendar: by ChooseText
  kTextExportCopy = 5335,      // title and filter of the file dialog

  kTextEventRefusals = 5340,   // no name; month and its days; before the 2nd; the end before the beginning
  kTextNameTooLong = 5341,     // most units, units
  kTextPeriodRefusals = 5342,  // no date; the end before the beginning; one day; one day in a year; no bound
  kTextEventColumns = 5343,    // name, day, days in a year, kind
  kTextEventKinds = 5344,      // of a rule in the list: public, personal
  kTextKindHelp = 5345,        // what the number of a rule means, one for each kind
  kTextEventForm = 5346,       // titles of the form: a new event, an event of the list
  kTextEmptyEvents = 5347,     // of the list: nothing there, nothing that fits
  kTextListSteps = 5348,       // for undoing: add, change, delete one, delete some, up, down, import
  kTextUndoTips = 5349,        // undo, redo; the same with the step
  kTextUnsavedChanges = 5350,  // question, and its buttons
  kTextPeriodColumns = 5351,   // title, first day, last day, length, remark
  kTextPeriodForm = 5352,      // as for events
  kTextEmptyPeriods = 5353,
  kTextPeriodLength = 5354,  // from weekday to weekday, number of days
  kTextOverlap = 5355,       // remark: title of the other; without a title; period meant is the one shown
  kTextEventAdded = 5356,    // name, in words
  kTextMoveTips = 5357,      // why an entry cannot be moved; what moving is for
  kTextNoDayInYear = 5358,
  kTextEventFilters = 5359,    // all, public, personal
  kTextAlways = 5360,          // a validity without an end
  kTextLongestFallsOn = 5362,  // that there is room for
  kTextLongestLength = 5363,
  kTextDateLabels = 5361,  // of the fields for a date, for a month
  kTextGoToDate = 5370,  // over one reading, over several, behind a reason before the dates that are offered
  kTextReadingLine = 5371,  // a reading, and how it was understood
  kTextFindDay = 5380,      // no hit, one, many; stopped; too many; none after, none before

  kTextTitleBeforeEra = 5400,    // of a printed page: month, year, year before the era
  kTextYearsTitle = 5401,        // of months of a year: year; year and year before the era
  kTextTwoYearsTitle = 5402,     // the same, where two civil years meet
  kTextRepublicanYears = 5403,   // goes on with one, with two Republican years
  kTextWeekLabel = 5404,         // title and number of a week: in a column, in a table
  kTextConcordances = 5405,      // names of the columns: Julian, Republican
  kTextComplementaryDay = 5406,  // stands for the name of a month
  kTextPrintNames = 5450,        // accessible names of the buttons for period and format
  kTextSpokenPage = 5451,        // page, number of pages
  kTextPrintZoom = 5452,         // percentage
  kTextPrintYears = 5453,     // of that dialog: a year before the era; years and pages; wrong order; a button
  kTextPrintName = 5454,      // of a proposed file: calendar without a name; year before the era; from and to
  kTextExportPdf = 5455,      // title and filter of the file dialog
  kTextPrintProgress = 5456,  // pages done, number of pages
  kTextPrintEnds = 5457,      // target, or pages and target: one and many printed, written; aborted, the same
  kTextPrintFaults = 5458,    // no such pages: of one, of that many; printer; path of a file
  kTextPageList = 5459,       // cannot be read
  kTextPrintControls = 5460,  // accessible names of the toolkit's controls
  kTextReformCountries = 5500,  // in the order of NationalReforms()
  kTextCivilYearStyles = 5501,  // by StyleIndex
  kTextPreferences = 5502,     // title of the sheet, its pages, names of the list of pages and of the preview
  kTextRowRefusals = 5503,     // why a row of the civil years is refused: empty, after the reform, not later
  kTextReformPreset = 5504,    // country, last Julian and first Gregorian day; the same of a doubtful one
  kTextClosedEarly = 5505,     // year in which a style ends with the reform
  kTextCivilYearNames = 5506,  // of a row: accessible names of date and box, the text of no date
  kTextTitleElement = 5507,
  kTextColorPresets = 5508,  // by ColorPreset
  kTextPictureHidden = 5509,
  kTextElementTip = 5510,    // element
  kTextColorColumns = 5511,  // text, background; accessible name of the slider
  kTextCalendarFont = 5512,  // title of the dialog, the font that no name stands for, accessible name
  kTextSwitchesNotStored = 5513,
  kTextPathTooLong = 5514,  // most letters of the path of a picture

  kTextRuleDays = 5700,           // date; date moved from a weekend; date moved from a Sunday
  kTextNthWeekday = 5701,         // ordinal, weekday, month; the same before a vowel
  kTextWeekdayBesideDate = 5702,  // weekday and date: before, after
  kTextRomanEasterDays = 5703,    // that day, the day after, the day before; number of days after, before
  kTextOrthodoxEasterDays = 5704,
  kTextNoRuleDay = 5705,      // of a rule that names no day of the calendar
  kTextYear = 5706,           // number of a year; the same for one of at most two digits
  kTextValidityYears = 5707,  // whole years: since, until, from and to, in one year
  kTextValidityDates = 5708,  // the same by dates
  kTextOddValidity = 5709,    // bounds as they stand
  kTextNeverValid = 5710,
  kTextPeriodDays = 5711,  // first and last date; the first day of a month
  kTextFallsOn =
      5712,          // sentence; days and years in it; years without a day; years of a sentence without days
  kTextList = 5713,  // between the items of a list: any two, the last two

  // The words of typed dates: those of one kind, in the order of their values, parted by "|", the spellings
  // of one by ",", without little words.
  kTextReaderLittleWords = 5740,  // these may stand anywhere
  kTextReaderMonths = 5741,
  kTextReaderWeekdays = 5742,
  kTextReaderMarch = 5743,      // March or Tuesday
  kTextReaderSeptember = 5744,  // September or seven
  kTextReaderNumbers = 5745,    // 1 to 16, tens to 60, 100, 1000
  kTextReaderDays = 5746,
  kTextReaderWeeks = 5747,
  kTextReaderMonthsAsUnit = 5748,
  kTextReaderYears = 5749,
  kTextReaderIn = 5750,
  kTextReaderAgo = 5751,
  kTextReaderTodays = 5752,  // two days ago to in two days
  kTextReaderNext = 5753,
  kTextReaderLast = 5754,
  kTextReaderFeasts = 5755,  // in the order of their days
  kTextReaderOrthodox = 5756,
  kTextReaderRomanDays = 5757,  // calends, nones, ides
  kTextReaderDecadeDays = 5758,
  kTextReaderRepublicanMonths = 5759,
  kTextReaderComplementary = 5760,
  kTextReaderComplementaryDays = 5761,
  kTextReaderDayNumber = 5762,
  kTextReaderJulian = 5763,
  kTextReaderGregorian = 5764,
  kTextReaderBeforeEra = 5765,
  kTextReaderInEra = 5766,
  kTextReaderCivilYear = 5767,
  kTextReadingDate = 5770,      // weekday, day, month, year; then what may follow: era, civil year, calendar
  kTextReadingNotes = 5771,     // in the order of DateNote, kNone and kFeast left out
  kTextReadingWeekdays = 5772,  // a date and the weekday that it is, where another was typed
  kTextReadingOrders = 5773,    // by Date::dateOrder
  kTextReadingFeasts = 5774,    // Easter; one day and more days after it; one day and more days before it
  kTextReaderRefusals = 5775,   // in the order of DateRefusal, kNone left out
};

// Returns a text; empty for a number that the table does not hold.
std::u16string_view StringText(int id);

}  // namespace orbisol
