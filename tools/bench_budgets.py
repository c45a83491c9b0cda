"""The budgets: which figure is made of the measurements, and what it may be at most.

A new bench needs a row here. Budgets are ratios to a peer of the same run wherever there is one, because a ratio
holds on a slow machine too.
"""


def ratio(times, ours, peers):
    """Returns the sum of ours over the sum of the peers', or None if one was not measured."""
    if any(name not in times for name in ours + peers):
        return None
    return sum(times[name] for name in ours) / sum(times[name] for name in peers)


def scaled(times, name, factor):
    return times[name] * factor if name in times else None


# One row a figure: identifier ("-" for a limit beside the numbered budgets), text, the figure made of the measurements, limit, unit.
BUDGETS = [
    ("B1", "date to day number, beside std::chrono",
     lambda t: ratio(t, ["DateToNumber_Orbisol"], ["DateToNumber_Chrono"]), 1.55, ""),
    ("B1", "date to day number, beside ICU", lambda t: ratio(t, ["DateToNumber_Orbisol"], ["DateToNumber_Icu"]),
     0.015, ""),
    ("B2", "day number to date, beside std::chrono",
     lambda t: ratio(t, ["NumberToDate_Orbisol"], ["NumberToDate_Chrono"]), 1.35, ""),
    ("B2", "day number to date, beside ICU", lambda t: ratio(t, ["NumberToDate_Orbisol"], ["NumberToDate_Icu"]),
     0.013, ""),
    ("B3", "both, beside QDate and QCalendar switched by hand",
     lambda t: ratio(t, ["DateToNumber_Orbisol", "NumberToDate_Orbisol"], ["DateToNumber_Qt", "NumberToDate_Qt"]),
     0.38, ""),
    ("B4", "phases of a month, beside the straight evaluation",
     lambda t: ratio(t, ["MonthOfPhases_Orbisol"], ["MonthOfPhases_Plain"]), 0.22, ""),
    ("B5", "all 95,988 months with phases and the days of France",
     lambda t: scaled(t, "AllMonths_WithMoon", 95988e-9), 0.5, "s"),
    ("B5", "one such month, beside remind", lambda t: ratio(t, ["AllMonths_WithMoon"], ["AllMonths_Remind"]), 0.008, ""),
    ("B6", "years 1 to 3999 without phases, beside gcal",
     lambda t: ratio(t, ["YearsOfTheEra_WithoutMoon"], ["YearsOfTheEra_Gcal"]), 0.32, ""),
    ("B7", "a month of 10,000 rules and 1,000 periods", lambda t: scaled(t, "CrowdedMonth/10000", 1e-6), 1, "ms"),
    ("B7", "four times the rules, four times the time: by how much more",
     lambda t: ratio(t, ["CrowdedMonth/10000"], ["CrowdedMonth/2500"] * 4), 1.2, ""),
    ("-", "reading a calendar's file of 10 MB", lambda t: scaled(t, "ReadLargeFile/45000", 1e-9), 1, "s"),
    ("-", "twice the file, twice the time: by how much more",
     lambda t: ratio(t, ["ReadLargeFile/90000"], ["ReadLargeFile/45000"] * 2), 1.2, ""),
    ("B8", "first paint, beside an empty main window",
     lambda t: ratio(t, ["FirstPaint_Orbisol"], ["FirstPaint_EmptyWindow"]), 1.25, ""),
    ("B8", "settled, likewise", lambda t: ratio(t, ["Settled_Orbisol"], ["Settled_EmptyWindow"]), 1.3, ""),
    ("B8", "peak memory, likewise", lambda t: ratio(t, ["PeakBytes_Orbisol"], ["PeakBytes_EmptyWindow"]), 1.25, ""),
    *[("B9", f"whole repaint at {size}, beside QCalendarWidget with digits as large",
       lambda t, size=size: ratio(t, [f"Repaint{size}_Orbisol"], [f"Repaint{size}_QCalendarWidget"]), limit, "")
      for size, limit in (("900x450", 0.42), ("1920x1080", 0.7), ("3840x2160", 0.95))],
    ("B10", "next month, beside QCalendarWidget",
     lambda t: ratio(t, ["NextMonth_Orbisol"], ["NextMonth_QCalendarWidget"]), 0.4, ""),
    ("B11", "moving the selection, beside a whole repaint",
     lambda t: ratio(t, ["Selection_Orbisol"], ["Selection_WholeRepaint"]), 0.17, ""),
    ("B13", "opening the print frame with its first page, beside a repaint of QCalendarWidget at 1920x1080",
     lambda t: ratio(t, ["PrintFrame_Open"], ["Repaint1920x1080_QCalendarWidget"]), 3, ""),
    *[("B16", f"list of 5,000 events: {what}", lambda t, name=name: scaled(t, name, 1e-6), 100, "ms")
      for what, name in (("open", "EventList_Open"), ("filter", "EventList_Filter"), ("sort", "EventList_Sort"))],
    ("B15", "a word in all years of the days of France", lambda t: scaled(t, "SearchAllYears", 1e-9), 1, "s"),
    ("-", "dating one rule in one year", lambda t: scaled(t, "RuleDatesOfAYear", 1e-3), 1, "µs"),
    ("B17", "reading one typed date, and saying how", lambda t: scaled(t, "ReadTypedDates", 1e-3), 10, "µs"),
    ("B12", "12 pages of a month to PDF, beside remind and rem2pdf",
     lambda t: ratio(t, ["PdfOfAYear_Orbisol"], ["PdfOfAYear_Rem2Pdf"]), 0.35, ""),
    ("B12", "size of that file", lambda t: scaled(t, "PdfOfAYearBytes/iterations:1", 1e-3), 60, "kB"),
    ("B18", "a hundred years to PDF, beside four times 25: by how much more",
     lambda t: ratio(t, ["YearsToPdf/100"], ["YearsToPdf/25"] * 4), 1.2, ""),
    ("B18", "memory that 75 pages more take", lambda t: scaled(t, "YearsToPdfGrowth/iterations:1", 1e-6), 1, "MB"),
    *[("B19", f"preview of the preferences after a change: {what}", lambda t, name=name: scaled(t, name, 1e-6), 16, "ms")
      for what, name in (("sample", "Preview_Elements"), ("month of the reform", "Preview_Reform"))],
    ("B20", "repaint with texts in the cells, beside without",
     lambda t: ratio(t, ["CellTexts_Shown"], ["CellTexts_Hidden"]), 1.5, ""),
    ("B14", "processor time in 5 s without a user", lambda t: scaled(t, "IdleTime", 1e-6), 0, "ms"),
    ("B14", "wake-ups, likewise", lambda t: scaled(t, "IdleWakeUps", 1), 0, ""),
]


def print_budgets(times):
    for name, what, figure, limit, unit in BUDGETS:
        value = figure(times)
        if value is None:
            continue
        verdict = "ok" if value <= limit else "near" if value <= 1.1 * limit else "short"
        unit = f" {unit}" if unit else ""
        print(f"{name}  {value:.3f}{unit}  <= {limit:g}{unit}  {verdict:<5}  {what}")
