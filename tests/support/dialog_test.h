// What tests of dialogs share: a day that is today, the rules of the Roman reform, and a user who answers.
//
//   class EditorTest : public DialogTest {
//     EditorTest() : DialogTest({2024, 5, 15}) {}
//   };
#pragma once

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/rules.h"
#include "tests/support/spy_messages.h"

namespace orbisol {

class DialogTest : public testing::Test {
 protected:
  explicit DialogTest(const YearMonthDay& today)
      : m_platform(FakeLocale(), FakeClock(today)), m_rules(RulesWith(kRomanReform)), m_messages(messages) {}

  SpyMessages messages;

 private:
  ScopedPlatform m_platform;
  ScopedRules m_rules;
  ScopedMessages m_messages;
};

}  // namespace orbisol
