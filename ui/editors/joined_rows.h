// The rows of an editor: records as a user sees them. Neighboring records that are the cut of one range
// (content/record_range.h) are one row and are edited together; every other record is a row of its own.
//
//   std::vector<EventRow> rows = RowsOf<DayEvent>(content.dayEvents);
//   rows[0] = RowOf(rule, DayRange{18800714, kAlways.last});
//   content.dayEvents = RecordsOf<DayEvent>(rows);
//
// RecordsOf(RowsOf(records)) is `records` again, in the same order.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "content/day_event.h"
#include "content/record_range.h"
#include "content/vacation.h"

namespace orbisol {

template <class Record>
struct JoinedRow {
  Record record;                     // the first of its records
  std::vector<RecordBounds> bounds;  // of all its records, at least one
  std::optional<DayRange> range;     // that they make; empty for a record whose bounds are no range

  bool operator==(const JoinedRow&) const = default;
};
using EventRow = JoinedRow<DayEvent>;
using PeriodRow = JoinedRow<HolidayPeriod>;

template <class Record>
Record WithBounds(Record record, const RecordBounds& bounds) {
  record.ymdFrom = bounds.from;
  record.ymdTo = bounds.to;
  return record;
}

template <class Record>
RecordBounds BoundsOfRecord(const Record& record) {
  return {record.ymdFrom, record.ymdTo};
}

// Returns the records of one row.
template <class Record>
std::vector<Record> RecordsOf(const JoinedRow<Record>& row) {
  std::vector<Record> records;
  for (const RecordBounds& bounds : row.bounds) records.push_back(WithBounds(row.record, bounds));
  return records;
}

template <class Record>
std::vector<Record> RecordsOf(std::span<const JoinedRow<Record>> rows) {
  std::vector<Record> records;
  records.reserve(rows.size());
  for (const JoinedRow<Record>& row : rows)
    for (const RecordBounds& bounds : row.bounds) records.push_back(WithBounds(row.record, bounds));
  return records;
}

// Returns the row of a record that is to hold for a range, whatever its own bounds; without bounds where the
// range ends before it begins.
template <class Record>
JoinedRow<Record> RowOf(const Record& record, const DayRange& range) {
  JoinedRow<Record> row{record, BoundsOf(range), range};
  if (!row.bounds.empty()) row.record = WithBounds(record, row.bounds.front());
  return row;
}

template <class Record>
std::vector<JoinedRow<Record>> RowsOf(std::span<const Record> records) {
  std::vector<JoinedRow<Record>> rows;
  rows.reserve(records.size());
  for (std::size_t i = 0; i < records.size();) {
    // Only the cut of a range that begins before the era has more than one piece, and its first ends there.
    std::vector<RecordBounds> bounds = {BoundsOfRecord(records[i])};
    for (std::size_t j = i + 1; bounds[0].to < 0 && j < records.size(); ++j) {
      if (!(WithBounds(records[j], bounds[0]) == records[i])) break;
      bounds.push_back(BoundsOfRecord(records[j]));
    }
    const JoinedRange joined = JoinRanges(bounds);
    bounds.resize(joined.records);
    rows.push_back({records[i], std::move(bounds), joined.range});
    i += joined.records;
  }
  return rows;
}

}  // namespace orbisol
