// The numbers of the commands. A command's status and tool-tip texts stand in the string table under its
// number (strings.h).
#pragma once

namespace orbisol {

enum CommandId : int {
  kNoCommand = 0,  // stands for a separator in the tables of the menus

  kCmdQuit = 2,
  kCmdPageSetup = 110,
  kCmdPrintPages = 111,
  kCmdClosePrint = 112,
  kCmdPeriodMonth = 113,  // periods, from the month to the year
  kCmdPeriodQuarter1 = 114,
  kCmdPeriodQuarter2 = 115,
  kCmdPeriodQuarter3 = 116,
  kCmdPeriodQuarter4 = 117,
  kCmdPeriodHalf1 = 118,
  kCmdPeriodHalf2 = 119,
  kCmdPeriodYear = 120,
  kCmdFormatYear = 121,  // formats
  kCmdFormatHalf = 122,
  kCmdFormatQuarter = 123,
  kCmdFormatMonth = 124,
  kCmdFormatScreen = 125,
  kCmdFormatTable = 126,
  kCmdPrintHolidays = 127,  // options
  kCmdPrintEvents = 128,
  kCmdPrintVacations = 129,
  kCmdPrintMoon = 130,
  kCmdPreviousPage = 133,
  kCmdNextPage = 134,
  kCmdCopyJulianDate = 140,
  kCmdCopyRepublicanDate = 142,
  kCmdCopyDate = 261,
  kCmdPrint = 262,
  kCmdTogglePane = 263,
  kCmdEditEvents = 264,
  kCmdPreferences = 265,
  kCmdAbout = 896,
  kCmdFirstMonth = 1051,  // entries of the menu of the months: 1051 January .. 1062 December
  kCmdLastMonth = 1062,
  kCmdZoomIn = 1855,
  kCmdZoomOut = 1856,
  kCmdGoBack = 5201,
  kCmdGoForward = 5202,
  kCmdGoToToday = 5203,
  kCmdGoToDate = 5210,
  kCmdFind = 5211,
  kCmdFindNext = 5212,
  kCmdFindPrevious = 5213,
  kCmdNewCalendar = 5230,
  kCmdPrintJulian = 5240,
  kCmdPrintRepublican = 5241,
  kCmdExportPdf = 5242,
  kCmdPrintYears = 5243,
  kCmdFitPage = 5244,
  kCmdFitWidth = 5245,
  kCmdActualSize = 5246,
  kCmdFirstPage = 5247,
  kCmdLastPage = 5248,
  kCmdToggleCellTexts = 5260,
  kCmdHelpPrinting = 40024,
  kCmdPrintImage = 40025,
  kCmdEditVacations = 40027,
  kCmdChooseCalendar = 40036,
  kCmdHelpIndex = 57666,
  kCmdHelpContents = 57670,
  kCmdToggleToolBar = 59392,
  kCmdToggleStatusBar = 59393,
};

}  // namespace orbisol
