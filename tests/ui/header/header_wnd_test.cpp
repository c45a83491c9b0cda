// The header, with real events to a real window.

#include "ui/header/header_wnd.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>
#include <QWheelEvent>

#include "tests/support/dialog_test.h"
#include "ui/header/year_edit.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"

namespace orbisol {
namespace {

class HeaderWndTest : public DialogTest {
 protected:
  HeaderWndTest() {
    QObject::connect(&header, &CHeaderWnd::dateChanged, &header, [this] { ++changes; });
    window.resize(600, 130);
    header.setGeometry(0, 0, 600, 62);
    other.setFocus();
    Show(20240229);
    Activate(window);
  }

  void Show(PackedDate date) {
    Select(date);
    header.Refresh();
  }
  void Click(const Rect& rect, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
             Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&header, button, modifiers, ToQRect(rect).center());
  }
  CYearEdit* OpenYear() {
    Click(header.Places().year);
    return header.findChild<CYearEdit*>();
  }
  static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
  void Hover(const QPointF& at) {
    QMouseEvent event(QEvent::MouseMove, at, header.mapToGlobal(at), Qt::NoButton, {}, {});
    QApplication::sendEvent(&header, &event);
  }
  std::string TipAt(QPoint point) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, point, header.mapToGlobal(point));
    QApplication::sendEvent(&header, &event);
    return event.isAccepted() ? QToolTip::text().toStdString() : "none";
  }
  static std::string Focused() { return QApplication::focusWidget()->accessibleName().toStdString(); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static void RepeatEnter() {
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(QApplication::focusWidget(), &repeat);
  }

  int changes = 0;
  QWidget window;
  QLineEdit other{&window};  // has the focus at first, like the month
  CHeaderWnd header{&window};
};

TEST_F(HeaderWndTest, ArrowsStepAsTheirKeysSayAndTheRightButtonGoesToTheEnds) {
  const struct {
    PackedDate from;
    bool isNext;
    Qt::KeyboardModifiers modifiers;
    PackedDate to;
    Qt::MouseButton button = Qt::LeftButton;
  } kSteps[] = {
      {20240229, false, Qt::NoModifier, 20240129},
      {20240131, true, Qt::NoModifier, 20240229},
      {20240229, false, Qt::ControlModifier, 20230229},  // On purpose: a day that does not exist is kept.
      {20240229, true, Qt::ControlModifier, 20250229},
      {20240501, false, Qt::ShiftModifier, 20140501},
      {20240501, true, Qt::ShiftModifier, 20340501},
      {39950301, true, Qt::ShiftModifier, 39991231},
      {20240501, true, Qt::ControlModifier | Qt::ShiftModifier, 21240501},
      {20240501, false, Qt::NoModifier, -39990101, Qt::RightButton},
      {20240501, true, Qt::ShiftModifier, 39991231, Qt::RightButton},
  };
  for (const auto& step : kSteps) {
    Show(step.from);
    changes = 0;
    Click(step.isNext ? header.Places().next : header.Places().previous, step.modifiers, step.button);
    EXPECT_EQ(Now(), step.to);
    EXPECT_EQ(changes, 1) << step.to;
  }
}

TEST_F(HeaderWndTest, TheMonthMenuKeepsTheDay) {
  FakeLocale odd;
  odd.months = std::vector<std::u16string>(12, u"mois & co");
  const ScopedPlatform inForce(odd);
  Show(20240531);
  Click(header.Places().month);
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(OpenMenu()->x(), header.mapToGlobal(QPoint(header.Places().month.left, 0)).x());
  const QList<QAction*> months = OpenMenu()->actions();
  EXPECT_EQ(months[7]->text(), QStringLiteral("Mois && co"));
  EXPECT_EQ(months[7]->data().toInt(), 1058);
  EXPECT_TRUE(months[4]->isChecked());
  months[3]->trigger();
  OpenMenu()->close();
  EXPECT_EQ(Now(), 20240431);  // On purpose: 31 April is kept.
  EXPECT_EQ(changes, 1);
}

TEST_F(HeaderWndTest, TheMonthMenuGoesToFirstLettersAndToItsEnds) {
  Click(header.Places().month);
  for (const auto& [key, month] : {std::pair{Qt::Key_J, 6},
                                   {Qt::Key_J, 7},
                                   {Qt::Key_J, 1},
                                   {Qt::Key_End, 12},
                                   {Qt::Key_X, 12},
                                   {Qt::Key_O, 10},
                                   {Qt::Key_Home, 1},
                                   {Qt::Key_Up, 12}}) {
    QTest::keyClick(OpenMenu(), key);
    ASSERT_NE(OpenMenu(), nullptr);
    EXPECT_EQ(OpenMenu()->actions().indexOf(OpenMenu()->activeAction()), month - 1) << key;
  }
  OpenMenu()->close();
}

TEST_F(HeaderWndTest, TheWheelStepsByMonthsAndWithCtrlByYears) {
  for (const auto& [turned, modifiers, to] : {std::tuple{-120, Qt::NoModifier, 20240329},
                                              {240, Qt::NoModifier, 20240129},
                                              {-120, Qt::ControlModifier, 20250129}}) {
    OpenYear();
    QWheelEvent event({300, 30}, {300, 30}, {}, {0, turned}, {}, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&header, &event);
    EXPECT_EQ(Now(), to);
    EXPECT_FALSE(header.IsEditingYear());
  }
  EXPECT_EQ(changes, 3);
}

TEST_F(HeaderWndTest, TheYearEditorReadsEachChange) {
  CYearEdit* const editor = OpenYear();
  QTest::keyClicks(editor, QStringLiteral("1582"));
  EXPECT_EQ(Now(), 15820229);
  const int before = changes;
  editor->selectAll();
  QTest::keyClicks(editor, QStringLiteral("-"));  // nothing to read yet
  EXPECT_EQ(changes, before);
  QTest::keyClicks(editor, QStringLiteral("5000x"));
  EXPECT_EQ(Selected().year, -3999);
  EXPECT_EQ(editor->Text(), QStringLiteral("-5000"));  // never rewritten while it is typed in

  QTest::keyClick(editor, Qt::Key_Up);
  EXPECT_EQ(editor->Text(), QStringLiteral("-3998"));
  QAccessibleValueInterface& value = *QAccessible::queryAccessibleInterface(editor)->valueInterface();
  EXPECT_EQ(value.minimumValue().toInt(), -3999);
  EXPECT_EQ(value.maximumValue().toInt(), 3999);
  value.setCurrentValue(1789);
  EXPECT_EQ(Selected().year, 1789);
  EXPECT_EQ(value.currentValue().toInt(), 1789);
}

TEST_F(HeaderWndTest, TheYearEditorGivesTheFocusBackUnlessItWasTaken) {
  QTest::keyPress(OpenYear(), Qt::Key_Return);
  EXPECT_FALSE(header.IsEditingYear());
  EXPECT_FALSE(other.hasFocus());  // Enter's repetitions must not reach the month, where it means today
  QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(other.hasFocus());

  OpenYear();
  QWidget another;
  Activate(another);
  EXPECT_FALSE(header.IsEditingYear());
  window.activateWindow();
  Settle();
  EXPECT_TRUE(other.hasFocus());

  for (const auto& [key, taker] :
       {std::pair{Qt::Key_Tab, "Mois suivant : mars 2024"}, {Qt::Key_Backtab, "Année : 2024"}}) {
    OpenYear();
    Key(key);
    EXPECT_FALSE(header.IsEditingYear());
    EXPECT_EQ(Focused(), taker);
  }
}

TEST_F(HeaderWndTest, TheYearIsTheCivilOne) {
  for (const auto& [rules, start] : {std::pair{11000325, "Année civile débutant le 25 mars"},
                                     {11000301, "Année civile débutant le 1er mars"}}) {
    const ScopedRules byStart(RulesWith(kRomanReform, {.rows = {{rules, false}}}));
    Show(15000210);
    EXPECT_EQ(header.TitleText(), QString::fromUtf8("Février 1499"));
    EXPECT_EQ(header.CivilYearText(), QString::fromUtf8(start));
    QTest::keyClicks(OpenYear(), QStringLiteral("1400"));
    EXPECT_EQ(Now(), 14010210);  // 10 February 1401 lies in the civil year 1400
    header.CloseYearEditor();
  }
}

TEST_F(HeaderWndTest, TextsAreThoseOfTheDate) {
  Display().showWeekNumber = false;
  Show(20240101);
  EXPECT_EQ(header.LeftText(), QStringLiteral("Lundi 1 janvier 2024"));
  EXPECT_EQ(header.RightText(), QString::fromUtf8("[s. 1] 1 • 365"));
  EXPECT_EQ(header.CivilYearText(), QString());
  Display().showWeekNumber = true;
  EXPECT_EQ(header.RightText(), QString::fromUtf8("1 • 365"));
  Show(10101);
  EXPECT_EQ(header.EraText(), QString());
}

// Each text and arrow leaves ink in its place, and another date other ink.
TEST_F(HeaderWndTest, BandsArrowsAndTitleArePaintedAndAnswerToThePointer) {
  Show(101);  // has eras in the top band
  const HeaderLayout& places = header.Places();
  const QColor ink = ToQColor(Display().ColorAt(kColorCalHeader));
  const QImage image = header.grab().toImage();
  const auto half = [](const Rect& band, bool isRight) {
    return QRect(isRight ? band.right / 2 : 0, band.top, band.right / 2, band.Height());
  };
  const Rect& previous = places.previous;
  const Rect& next = places.next;
  const auto inkIn = [&](const QRect& place) {
    int inked = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
      for (int x = place.left(); x <= place.right(); ++x) inked += image.pixelColor(x, y) == ink;
    return inked;
  };
  for (const QRect& place : {QRect(previous.left, previous.top + previous.Height() / 2 - 1, 6, 3),
                             QRect(next.right - 6, next.top + next.Height() / 2 - 1, 6, 3),
                             ToQRect(places.month), ToQRect(places.year), half(places.topBand, true),
                             half(places.bottomBand, false), half(places.bottomBand, true)})
    EXPECT_GE(inkIn(place), 5) << place.x() << ", " << place.y();
  const int halfArrow = previous.Width() / 2;  // they point outward
  EXPECT_LT(inkIn({previous.left, previous.top, halfArrow, previous.Height()}),
            inkIn({previous.left + halfArrow, previous.top, halfArrow, previous.Height()}));
  EXPECT_GT(inkIn({next.left, next.top, halfArrow, next.Height()}),
            inkIn({next.right - halfArrow, next.top, halfArrow, next.Height()}));
  const auto point = [&](QPoint at) {
    Hover(at);
    return header.grab().toImage();
  };
  for (const Rect& part : {previous, places.month, places.year, next})
    EXPECT_NE(point(ToQRect(part).center()), image) << part.left;
  EXPECT_EQ(point(QPoint(100, 3)), image);
  point(ToQRect(next).center());
  QEvent left(QEvent::Leave);
  QApplication::sendEvent(&header, &left);
  EXPECT_EQ(header.grab().toImage(), image);
}

TEST_F(HeaderWndTest, TipsAndCursorsFollowTheParts) {
  Show(101);
  const HeaderLayout& places = header.Places();
  for (const auto& [point, text] :
       {std::pair{QPoint(3, 3), "Clic=mois précédent"},
        {QPoint(597, 3), "Clic=mois suivant"},
        {ToQRect(places.year).center(), "An 753 depuis la fondation de Rome"},
        {ToQRect(places.year).center(), "siècle"},
        {QPoint(ToQRect(places.bottomBand).bottomRight() - QPoint(4, 2)),
         "1er jour de l'année, il en reste 36"},
        {QPoint(603 - header.fontMetrics().horizontalAdvance(header.EraText()), 3), "1 avant Jésus-Christ"},
        {QPoint(100, 3), "none"}})
    EXPECT_NE(TipAt(point).find(text), std::string::npos) << TipAt(point);

  for (const auto& [point, isHand] : {std::pair{QPointF(0, 20), true},
                                      {QPointF(19.6, 40.6), true},
                                      {QPointF(ToQRect(places.year).center()), true},
                                      {QPointF(20, 30), false}}) {
    Hover(point);
    EXPECT_EQ(header.cursor().shape() == Qt::PointingHandCursor, isHand) << point.x();
  }
}

TEST_F(HeaderWndTest, TheKeyboardReachesAndPressesAllParts) {
  Key(Qt::Key_Tab);
  EXPECT_EQ(Focused(), "Mois précédent : janvier 2024");
  Key(Qt::Key_Return, Qt::ShiftModifier);
  Key(Qt::Key_Space);
  RepeatEnter();
  EXPECT_EQ(Now(), 20131229);
  Key(Qt::Key_Left);  // there is nothing
  EXPECT_EQ(Focused(), "Mois précédent : novembre 2013");

  Key(Qt::Key_Right);
  EXPECT_EQ(Focused(), "Mois : Décembre");
  RepeatEnter();
  EXPECT_EQ(OpenMenu(), nullptr);
  Key(Qt::Key_Return);
  ASSERT_NE(OpenMenu(), nullptr);
  OpenMenu()->close();

  Key(Qt::Key_Right);
  RepeatEnter();
  EXPECT_FALSE(header.IsEditingYear());
  Key(Qt::Key_Return);
  RepeatEnter();
  EXPECT_TRUE(header.IsEditingYear());
  int focused = 0;
  const auto counted = QObject::connect(qApp, &QApplication::focusChanged, [&] { ++focused; });
  Key(Qt::Key_Escape);
  EXPECT_EQ(Focused(), "Année : 2013");  // back where it came from, over nothing else
  EXPECT_EQ(focused, 1);
  QObject::disconnect(counted);
  Key(Qt::Key_Right);
  Key(Qt::Key_Right);
  EXPECT_EQ(Focused(), "Mois suivant : janvier 2014");
}

TEST_F(HeaderWndTest, EveryTitleFitsBetweenTheArrows) {
  Show(-39990901);
  for (const QSize size : {QSize(150, 20), QSize(150, 200), QSize(300, 60), QSize(900, 200)}) {
    header.resize(size);
    const HeaderLayout& places = header.Places();
    EXPECT_GE(places.month.left, places.previous.right) << size.width();
    EXPECT_LE(places.year.right, places.next.left) << size.width();
    EXPECT_LE(std::abs(places.month.left + places.year.right - size.width()), 1) << "centered together";
  }
  QFont large;
  large.setPixelSize(24);
  header.setFont(large);
  header.resize(900, header.minimumSizeHint().height());
  const QFontMetrics texts(large);
  EXPECT_GE(header.Places().title.Height(), texts.height());
  EXPECT_GE(header.minimumSizeHint().width(),
            texts.horizontalAdvance(header.LeftText() + header.RightText()));
  header.resize(900, header.height() - 20);
  const int inSans = header.Places().month.Width();
  EXPECT_GE(inSans, texts.horizontalAdvance(QStringLiteral("Septembre")));
  Display().fontName.Set(u"DejaVu Sans Mono");
  header.Refresh();
  EXPECT_NE(header.Places().month.Width(), inSans) << "the title has the face of the calendar";
}

}  // namespace
}  // namespace orbisol
