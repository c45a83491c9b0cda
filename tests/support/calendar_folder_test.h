// What tests of windows share that save: a folder of calendars and a settings key, both in memory.
#pragma once

#include "tests/support/dialog_test.h"
#include "tests/support/memory_calendars.h"
#include "tests/support/memory_store.h"

namespace orbisol {

class CalendarFolderTest : public DialogTest, protected MemoryCalendars {
 protected:
  using DialogTest::DialogTest;

  CMemoryStore store{"\"CalendarName\"=\"Calendar\"\n"};
};

}  // namespace orbisol
