// The month as screen readers are told of it, without a bus in between.

#include "ui/month/month_accessible.h"

#include "tests/ui/month/month_fixture.h"

namespace orbisol {
namespace {

using Texts = std::vector<std::string>;

std::vector<std::pair<QAccessible::Event, std::string>> g_told;  // with the name at that time

void Hear(QAccessibleEvent* event) {
  if (QAccessibleInterface* const about = event->accessibleInterface())
    g_told.emplace_back(event->type(), about->text(QAccessible::Name).toStdString());
}

class MonthAccessibleTest : public MonthWindowTest {
 protected:
  MonthAccessibleTest() {
    SetAccessibilitySpy(Hear);
    Refresh();
  }
  ~MonthAccessibleTest() override { SetAccessibilitySpy(nullptr); }

  void Refresh() {
    window->SettingsChanged();
    Settle();
    g_told.clear();
  }
  QAccessibleInterface& Reader() { return *QAccessible::queryAccessibleInterface(window.get()); }
  QAccessibleTableInterface& Table() { return *Reader().tableInterface(); }
  static std::string Name(QAccessibleInterface* item) { return item->text(QAccessible::Name).toStdString(); }
  static Texts Told(QAccessible::Event type) {
    Texts names;
    for (const auto& [told, name] : g_told)
      if (told == type) names.push_back(name);
    return names;
  }
};

TEST_F(MonthAccessibleTest, IsATableWithHeadersWhoseDaysAreNamedByTheirTips) {
  Display().showWeekNumber = true;
  Refresh();
  EXPECT_EQ(Name(&Reader()), "Mai 2024");
  QAccessibleInterface* const first = Table().cellAt(0, 2);
  EXPECT_EQ(Name(first),
            "Mercredi 1 mai 2024, jour férié : Fête <b>du</b> travail, vacances : Vacances, "
            "Dernier quartier de lune");
  EXPECT_EQ(first->role(), QAccessible::ListItem);  // On purpose: of cells a reader says the whole row.
  EXPECT_EQ(Name(first->tableCellInterface()->columnHeaderCells().at(0)), "Mercredi");
  EXPECT_EQ(Name(first->tableCellInterface()->rowHeaderCells().at(0)), "Semaine 18");
  for (const auto& [index, what] : {std::pair{0, "Mois précédent"}, {2, ""}, {34, "Mois suivant"}})
    EXPECT_EQ(Reader().child(index)->text(QAccessible::Description).toStdString(), what);
}

// Readers count places and children alike, and the toolkit trusts what they ask for.
TEST_F(MonthAccessibleTest, EveryChildIsFoundByItsIndexAndByItsPlace) {
  for (const bool weekNumbers : {true, false}) {
    Display().showWeekNumber = weekNumbers;
    Refresh();
    ASSERT_EQ(Reader().childCount(), weekNumbers ? 56 : 49);
    for (int i = 0; i < Reader().childCount(); ++i) {
      QAccessibleInterface* const child = Reader().child(i);
      EXPECT_EQ(Reader().indexOfChild(child), i);
      EXPECT_EQ(Table().cellAt(i / 7, i % 7), child) << i;
      EXPECT_EQ(child->tableCellInterface()->rowIndex() * 7 + child->tableCellInterface()->columnIndex(), i);
      EXPECT_EQ(Reader().childAt(child->rect().center().x(), child->rect().center().y()), child) << i;
    }
    EXPECT_EQ(Reader().child(Reader().childCount()), nullptr);
    EXPECT_EQ(Reader().child(-1), nullptr);
    for (const auto& [row, column] : {std::pair{0, -1}, {0, 7}, {-1, 0}, {8, 0}, {2147483647, 6}})
      EXPECT_NE(Table().cellAt(row, column), nullptr) << row << ", " << column;
  }
}

TEST_F(MonthAccessibleTest, SelectionAndFocusFollowTheDate) {
  const std::string fifteenth = "Mercredi 15 mai 2024, aujourd'hui, Premier quartier de lune";
  EXPECT_EQ(Name(Reader().focusChild()), fifteenth);
  Press(Qt::Key_Right);
  EXPECT_EQ(Told(QAccessible::Focus), Texts{"Jeudi 16 mai 2024"});
  EXPECT_EQ(Told(QAccessible::SelectionAdd), Texts{"Jeudi 16 mai 2024"});
  EXPECT_EQ(Told(QAccessible::SelectionRemove), Texts{fifteenth});
  EXPECT_EQ(Told(QAccessible::NameChanged), Texts{});
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Table().selectedCellCount(), 8);
  const std::string range = "Jeudi 23 mai 2024, Pleine lune, du 16 mai 2024 au 23 mai 2024, 8 jours";
  EXPECT_EQ(Name(Reader().focusChild()), range);
  EXPECT_EQ(Told(QAccessible::Focus).back(), range);
  EXPECT_FALSE(Table().cellAt(2, 2)->state().selected);
}

// May 2023 and January 2024 begin on a Monday both: the selected day keeps its place.
TEST_F(MonthAccessibleTest, AnotherMonthIsToldAlsoWhereTheDayKeepsItsPlace) {
  Select(20230515);
  Refresh();
  Select(20240115);
  window->Refresh();
  EXPECT_EQ(Told(QAccessible::TableModelChanged), Texts{"Janvier 2024"});
  EXPECT_EQ(Told(QAccessible::Focus), (Texts{"Janvier 2024", "Lundi 15 janvier 2024"}));
  const Texts renamed = Told(QAccessible::NameChanged);
  EXPECT_NE(std::find(renamed.begin(), renamed.end(), "Lundi 15 janvier 2024"), renamed.end());
}

TEST_F(MonthAccessibleTest, DaysArePressedAndFocusedAsAClickWouldDoIt) {
  window->clearFocus();
  Table().cellAt(0, 1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Now(), 20240430);
  EXPECT_FALSE(window->hasFocus() || Table().cellAt(4, 1)->state().focused);
  Table().cellAt(1, 0)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(Now(), 20240408);
  EXPECT_TRUE(window->hasFocus());
  EXPECT_EQ(Reader().child(42)->actionInterface(), nullptr) << "a name";
}

// The rows at the ends of the range are not full, and 29 February 2025 has no place.
TEST_F(MonthAccessibleTest, EmptyPlacesHaveNoNameAndNoFocus) {
  for (const PackedDate date : {kFirstDateShown, kLastDateShown, 20250229}) {
    Select(date);
    Refresh();
    for (int i = 0; i < 42; ++i)
      EXPECT_EQ(Reader().child(i)->state().disabled, Name(Reader().child(i)).empty()) << date << ": " << i;
    EXPECT_EQ(Reader().focusChild() == nullptr, date == 20250229);
    EXPECT_EQ(Name(&Reader()).find("n'existe pas") != std::string::npos, date == 20250229);
  }
}

}  // namespace
}  // namespace orbisol
