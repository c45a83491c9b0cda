// What a screen reader is told of the month, without a bus in between.

#include "ui/month/month_accessible.h"

#include "tests/ui/month/month_fixture.h"
#include "ui/common/plain_text.h"

namespace orbisol {
namespace {

struct Told {
  QAccessible::Event type;
  std::string name;  // of what it is about, as it was when it was told
};
std::vector<Told> g_told;

void Hear(QAccessibleEvent* event) {
  if (QAccessibleInterface* const about = event->accessibleInterface())
    g_told.push_back({event->type(), about->text(QAccessible::Name).toStdString()});
}

class MonthAccessibleTest : public MonthWindowTest {
 protected:
  MonthAccessibleTest() {
    SetReader(Hear);
    DayEvent day;
    day.name.Set(u"Fête <b>du</b> travail");
    day.isPublic = true;
    day.ymdFrom = kAlwaysFrom;
    day.ymdTo = kAlwaysTo;
    day.day = 1;
    day.month = 5;
    Content().dayEvents.push_back(day);
    HolidayPeriod period;
    period.ymdFrom = 20240429;
    period.ymdTo = 20240503;
    period.title.Set(u"Vacances");
    Content().holidays.push_back(period);
    Refresh();
  }
  ~MonthAccessibleTest() override { SetReader(nullptr); }

  void Refresh() {
    window->SettingsChanged();
    Settle();
    g_told.clear();
  }
  QAccessibleInterface& Reader() { return *QAccessible::queryAccessibleInterface(window.get()); }
  QAccessibleTableInterface& Table() { return *Reader().tableInterface(); }
  static std::string Name(QAccessibleInterface* item) {
    return item == nullptr ? "none" : item->text(QAccessible::Name).toStdString();
  }
  static std::vector<std::string> Names(QAccessible::Event type) {
    std::vector<std::string> names;
    for (const Told& told : g_told)
      if (told.type == type) names.push_back(told.name);
    return names;
  }
  using Texts = std::vector<std::string>;
};

TEST_F(MonthAccessibleTest, IsATableWithHeadersWhoseDaysAreNamedByTheirTips) {
  Display().showWeekNumber = true;
  Refresh();
  EXPECT_EQ(Reader().role(), QAccessible::Table);
  EXPECT_EQ(Name(&Reader()), "Mai 2024");
  EXPECT_EQ(Table().columnCount(), 7);
  EXPECT_EQ(Table().rowCount(), 6);

  QAccessibleInterface* const first = Table().cellAt(0, 2);
  EXPECT_EQ(Name(first), "Mercredi 1 mai 2024, Fête <b>du</b> travail, Vacances, (Dernier quartier de lune)");
  QAccessibleTableCellInterface& cell = *first->tableCellInterface();
  ASSERT_EQ(cell.columnHeaderCells().size(), 1);
  ASSERT_EQ(cell.rowHeaderCells().size(), 1);
  EXPECT_EQ(Name(cell.columnHeaderCells()[0]), "Mercredi");
  EXPECT_EQ(cell.columnHeaderCells()[0]->role(), QAccessible::ColumnHeader);
  EXPECT_EQ(Name(cell.rowHeaderCells()[0]), "18");
  EXPECT_EQ(cell.rowHeaderCells()[0]->role(), QAccessible::RowHeader);
  EXPECT_EQ(Table().rowDescription(4), "22");
  EXPECT_EQ(Name(Table().cellAt(0, 0)), "Lundi 29 avril 2024");
  EXPECT_EQ(Table().cellAt(0, 0)->text(QAccessible::Description).toStdString(), "Mois précédent");
  EXPECT_EQ(Table().cellAt(4, 6)->text(QAccessible::Description).toStdString(), "Mois suivant");
  EXPECT_EQ(first->text(QAccessible::Description), "");
  // Below the month.
  EXPECT_EQ(Name(Table().cellAt(5, 0)), "");
  EXPECT_TRUE(Table().cellAt(5, 0)->state().disabled);
}

// Places and children are two ways to the same items.
TEST_F(MonthAccessibleTest, EveryChildIsFoundByItsIndexAndByItsPlace) {
  for (const bool weekNumbers : {true, false}) {
    Display().showWeekNumber = weekNumbers;
    Refresh();
    ASSERT_EQ(Reader().childCount(), weekNumbers ? 56 : 49);
    for (int i = 0; i < Reader().childCount(); ++i) {
      QAccessibleInterface* const child = Reader().child(i);
      ASSERT_NE(child, nullptr) << i;
      EXPECT_EQ(child->parent(), &Reader());
      EXPECT_EQ(Reader().indexOfChild(child), i);
      const QPoint middle = child->rect().center();
      EXPECT_EQ(Reader().childAt(middle.x(), middle.y()), child) << i;
      EXPECT_TRUE(Reader().rect().contains(child->rect())) << i;
    }
    EXPECT_EQ(Reader().child(Reader().childCount()), nullptr);
    EXPECT_EQ(Reader().child(-1), nullptr);
  }
  EXPECT_EQ(Table().cellAt(0, 2)->tableCellInterface()->rowHeaderCells().size(), 0);
  EXPECT_EQ(Table().cellAt(0, 7), nullptr);
  EXPECT_EQ(Table().cellAt(6, 0), nullptr);
}

TEST_F(MonthAccessibleTest, SelectionAndFocusFollowTheDate) {
  EXPECT_EQ(Name(Reader().focusChild()), "Mercredi 15 mai 2024, (Premier quartier de lune)");
  EXPECT_TRUE(Reader().focusChild()->state().focused);
  EXPECT_TRUE(Reader().focusChild()->state().selected);

  Press(Qt::Key_Right);
  EXPECT_EQ(Names(QAccessible::Focus), Texts{"Jeudi 16 mai 2024"});
  EXPECT_EQ(Names(QAccessible::SelectionAdd), Texts{"Jeudi 16 mai 2024"});
  EXPECT_EQ(Names(QAccessible::SelectionRemove), Texts{"Mercredi 15 mai 2024, (Premier quartier de lune)"});
  EXPECT_TRUE(Names(QAccessible::TableModelChanged).empty());
  EXPECT_EQ(Names(QAccessible::NameChanged), Texts{});

  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Table().selectedCellCount(), 8);
  EXPECT_FALSE(Table().cellAt(2, 2)->state().selected);
  EXPECT_EQ(Name(Table().selectedCells().front()), "Jeudi 16 mai 2024");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Table().selectedCellCount(), 1);
  EXPECT_EQ(Name(Table().selectedCells().front()), "Jeudi 23 mai 2024, (Pleine lune)");
}

// May 2023 and January 2024 begin on a Monday both: the selected day keeps its place.
TEST_F(MonthAccessibleTest, AnotherMonthIsToldAlsoWhereTheDayKeepsItsPlace) {
  Select(20230515);
  Refresh();
  ASSERT_EQ(Name(Reader().focusChild()), "Lundi 15 mai 2023");
  Select(20240115);
  window->Refresh();
  EXPECT_EQ(Names(QAccessible::TableModelChanged), Texts{"Janvier 2024"});
  EXPECT_EQ(Names(QAccessible::Focus), (Texts{"Janvier 2024", "Lundi 15 janvier 2024"}));
  const Texts renamed = Names(QAccessible::NameChanged);
  EXPECT_NE(std::find(renamed.begin(), renamed.end(), "Lundi 15 janvier 2024"), renamed.end());
}

TEST_F(MonthAccessibleTest, PressingADaySelectsItAsAClickWould) {
  QAccessibleInterface* const april = Table().cellAt(0, 1);
  ASSERT_EQ(april->actionInterface()->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
  april->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Now(), 20240430);
  Settle();
  EXPECT_EQ(host.changes, 1);
  // Neither a name nor an empty place can be pressed.
  EXPECT_EQ(Reader().child(0)->actionInterface(), nullptr);
  EXPECT_TRUE(Table().cellAt(5, 6)->actionInterface()->actionNames().empty());
  Table().cellAt(5, 6)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Now(), 20240430);
}

TEST_F(MonthAccessibleTest, ADateWithoutACellLeavesTheFocusToTheTable) {
  Select(20250228);
  Refresh();
  Selected().day = 29;
  window->Refresh();
  EXPECT_EQ(Reader().focusChild(), nullptr);
  EXPECT_EQ(Table().selectedCellCount(), 0);
  EXPECT_EQ(Names(QAccessible::Focus), Texts{"Février 2025"});
}

// The rows at the ends of the range are not full.
TEST_F(MonthAccessibleTest, BothEndsOfTheRangeHaveNamesWhereTheyHaveDays) {
  Display().showWeekNumber = true;
  for (const PackedDate end : {kFirstDateShown, kLastDateShown}) {
    Select(end);
    Refresh();
    int named = 0;
    for (int row = 0; row < 6; ++row)
      for (int column = 0; column < 7; ++column) {
        QAccessibleInterface* const cell = Table().cellAt(row, column);
        named += Name(cell).empty() ? 0 : 1;
        EXPECT_EQ(Name(cell).empty(), bool(cell->state().disabled));
      }
    EXPECT_GE(named, 31);
    EXPECT_LT(named, 42);
    EXPECT_EQ(Name(Reader().focusChild()).empty(), false);
  }
}

}  // namespace
}  // namespace orbisol
