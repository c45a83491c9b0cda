#include "ui/header/header_wnd.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

#include "content/selected_date.h"
#include "content/spoken_text.h"
#include "core/civil_year.h"
#include "core/date_text.h"
#include "core/week_number.h"
#include "resources/strings.h"
#include "settings/display_settings.h"
#include "ui/header/header_part.h"
#include "ui/header/year_edit.h"
#include "ui/painting/month_fonts.h"
#include "ui/painting/month_texts.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

const QLatin1String kWidestYear("-0000");

constexpr int kBandGap = 12;  // pixels kept free between two texts of a band

}  // namespace

CHeaderWnd::CHeaderWnd(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(TablePiece(kTextHeaderNames, kNameHeader));

  const auto press = [this](HeaderPart part, Qt::KeyboardModifiers modifiers) { Press(part, modifiers); };
  // The parts are made in the order of Tab: the editor comes after the year.
  m_previousPart = new CHeaderPart(HeaderPart::kPrevious, press, this);
  m_monthPart = new CHeaderPart(HeaderPart::kMonth, press, this);
  m_yearPart = new CHeaderPart(HeaderPart::kYear, press, this);
  m_year = new CYearEdit(this);
  m_nextPart = new CHeaderPart(HeaderPart::kNext, press, this);
  m_previousPart->setAccessibleDescription(TableText(kTextPrevious));
  m_nextPart->setAccessibleDescription(TableText(kTextNext));

  m_year->hide();
  m_year->setAccessibleName(TablePiece(kTextHeaderNames, kNameYearEditor));
  connect(m_year, &CYearEdit::YearEntered, this, &CHeaderWnd::SetYear);
  connect(m_year, &CYearEdit::Closed, this, &CHeaderWnd::YearEditorClosed);

  TakeDate();
}

bool CHeaderWnd::IsEditingYear() const { return m_year->isVisible(); }

QString CHeaderWnd::TitleText() const { return MonthAndYear(m_monthName, m_shownYear); }

QString CHeaderWnd::LeftText() const { return ToQString(LongDate(Selected(), false)); }

QString CHeaderWnd::RightText() const {
  const Date& date = Selected();
  const int day = DayOfCivilYear(date);
  const int left = DaysLeftInCivilYear(date);
  if (Display().showWeekNumber) return TableText(kTextDayCounts, {day, left});
  return TableText(kTextWeekAndDayCounts, {StringText(kTextWeek), WeekNumber(date), day, left});
}

QString CHeaderWnd::EraText() const {
  const int year = CivilYearOf(Selected());
  return year < 1 ? TableText(kTextEras, {YearOfRome(year), YearBeforeEra(year)}) : QString();
}

QString CHeaderWnd::CivilYearText() const {
  const int start = CivilYearStartDay(Selected());
  if (start == kFirstOfJanuary) return {};
  const std::u16string month = MonthName(start / 100);
  const std::u16string_view texts = StringText(kTextCivilYearStart);
  return ToQString(start % 100 == 1 ? FormatText(Piece(texts, u'|', 1), {month})
                                    : FormatText(Piece(texts, u'|', 0), {start % 100, month}));
}

void CHeaderWnd::Refresh() {
  m_year->SetPosition(CivilYearOf(Selected()));
  if (IsEditingYear() && MonthTitle(Selected().month) == m_monthName) {
    // The title is not updated under the editor.
    UpdateNames();
    update(ToQRect(m_layout.topBand));
    update(ToQRect(m_layout.bottomBand));
    return;
  }
  TakeDate();
  if (!m_hasSize) return;
  LayOut();
  update();
}

void CHeaderWnd::TakeDate() {
  m_monthName = MonthTitle(Selected().month);
  m_shownYear = CivilYearOf(Selected());
  UpdateNames();
}

// Makes the font of the title anew if the size of the header or the face changed; a date changes neither.
void CHeaderWnd::FitTitle() {
  QFont face = CalendarFont(Display(), font());
  face.setBold(true);
  if (m_fittedSize == size() && m_fittedFace == face) return;
  m_fittedSize = size();
  m_fittedFace = face;

  // The title is never smaller than the text of dialogs, however large that is.
  const int least = QFontMetrics(font()).height();
  m_titleFont = FontOfHeight(face, std::max(least, HeaderLayout::TitleHeight(height(), m_band)));
  const auto widest = [&] {
    const QFontMetrics metrics(m_titleFont);
    int name = 0;
    for (int month = 1; month <= 12; ++month)
      name = std::max(name, metrics.horizontalAdvance(MonthTitle(month)));
    return name + metrics.horizontalAdvance(QLatin1Char(' ') + kWidestYear);
  };
  // In a narrow and high window every title must still fit between the arrows.
  const int room = HeaderLayout::TitleRoom(width(), height());
  for (int needed = widest(); needed > room && m_titleFont.pixelSize() > 1; needed = widest())
    m_titleFont.setPixelSize(
        std::clamp(m_titleFont.pixelSize() * room / needed, 1, m_titleFont.pixelSize() - 1));
}

// Makes the font of the year editor: as large as the title's if its frame leaves room for that.
void CHeaderWnd::FitEditor() {
  constexpr int kFieldFrame = 4;  // pixels of the frame above and below the text together
  const int room = std::min(QFontMetrics(m_titleFont).height(), height() - 2 * m_band - kFieldFrame);
  m_year->setFont(FontOfHeight(m_fittedFace, std::max(1, room)));
}

void CHeaderWnd::LayOut() {
  m_band = HeaderBandHeight(QFontInfo(font()).pixelSize());
  FitTitle();
  if (IsEditingYear()) FitEditor();
  const QFontMetrics metrics(m_titleFont);
  HeaderMeasures measures;
  measures.width = width();
  measures.height = height();
  measures.band = m_band;
  measures.space = metrics.horizontalAdvance(QLatin1Char(' '));
  measures.month = metrics.horizontalAdvance(m_monthName);
  measures.year = metrics.horizontalAdvance(QString::number(m_shownYear));
  measures.widestYear = metrics.horizontalAdvance(kWidestYear);
  measures.spinButtons = m_year->ButtonsWidth();
  m_layout = HeaderLayout(measures);

  m_year->setGeometry(ToQRect(m_layout.yearEditor));
  m_previousPart->setGeometry(ToQRect(m_layout.previous));
  m_monthPart->setGeometry(ToQRect(m_layout.month));
  m_yearPart->setGeometry(ToQRect(m_layout.year));
  m_nextPart->setGeometry(ToQRect(m_layout.next));
}

QSize CHeaderWnd::minimumSizeHint() const {
  const QFontMetrics metrics(font());
  int month = 0;
  int weekday = 0;
  for (int i = 1; i <= 12; ++i) month = std::max(month, metrics.horizontalAdvance(ToQString(MonthName(i))));
  for (int i = 1; i <= 7; ++i)
    weekday = std::max(weekday, metrics.horizontalAdvance(ToQString(UpperFirst(WeekdayName(i)))));
  const int band = HeaderBandHeight(QFontInfo(font()).pixelSize());
  const QString counts = TableText(kTextWeekAndDayCounts, {StringText(kTextWeek), 53, 366, 366});
  return {weekday + month + metrics.horizontalAdvance(QLatin1String("  00, ") + kWidestYear) + kBandGap +
              metrics.horizontalAdvance(counts),
          HeaderLayout::LeastHeight(band, metrics.height())};
}

// Names the parts for screen readers; the arrows by the month that they lead to.
void CHeaderWnd::UpdateNames() {
  const auto leadsTo = [](int name, int step) {
    Date there = Selected();
    StepMonths(there, step);
    const std::u16string month = MonthName(there.month);
    return ToQString(FormatText(StringText(kTextLeadsTo), {Piece(StringText(kTextHeaderNames), u'|', name),
                                                           month, CivilYearOf(there)}));
  };
  const std::u16string month = UpperFirst(MonthName(Selected().month));
  setAccessibleDescription(LeftText() + QLatin1Char('\n') + CountsTip());
  m_previousPart->setAccessibleName(leadsTo(kNamePrevious, -1));
  m_nextPart->setAccessibleName(leadsTo(kNameNext, 1));
  m_monthPart->setAccessibleName(
      ToQString(FormatText(Piece(StringText(kTextHeaderNames), u'|', kNameMonth), {month})));
  m_yearPart->setAccessibleName(
      ToQString(FormatText(Piece(StringText(kTextHeaderNames), u'|', kNameYear), {CivilYearOf(Selected())})));
  m_monthPart->setAccessibleDescription(TablePiece(kTextHeaderTips, 0));
  m_yearPart->setAccessibleDescription(YearTip() + QLatin1Char('\n') + CountsTip());
}

// Highlights the month or the year under the pointer, to show that it can be clicked.
void CHeaderWnd::PaintPointedAt(QPainter& painter, const QColor& ink) const {
  const bool isYear = m_pointedAt == HeaderPart::kYear;
  if (m_pointedAt == HeaderPart::kNone || (isYear && IsEditingYear())) return;
  const Rect& place = m_pointedAt == HeaderPart::kPrevious ? m_layout.previous
                      : m_pointedAt == HeaderPart::kNext   ? m_layout.next
                      : isYear                             ? m_layout.year
                                                           : m_layout.month;
  constexpr float kTint = 0.12F;
  constexpr int kBeside = 4;  // pixels of the highlight left and right of the text
  QColor tint = ink;
  tint.setAlphaF(kTint);
  painter.setPen(Qt::NoPen);
  painter.setBrush(tint);
  painter.drawRoundedRect(ToQRect(place).adjusted(-kBeside, 0, kBeside, 0), kBeside, kBeside);
}

void CHeaderWnd::paintEvent(QPaintEvent*) {
  const DisplaySettings& settings = Display();
  const QColor ink = ToQColor(settings.ColorAt(kColorCalHeader));
  QPainter painter(this);
  painter.fillRect(rect(), ToQColor(settings.ColorAt(kColorBgCal)));

  painter.setRenderHint(QPainter::Antialiasing);
  PaintPointedAt(painter, ink);
  painter.setPen(QPen(ink, 1));
  painter.setBrush(ink);
  for (const auto& arrow : {m_layout.previousArrow, m_layout.nextArrow}) {
    QPolygonF corners;
    for (const HeaderLayout::Point& point : arrow) corners << QPointF(point.x, point.y);
    painter.drawConvexPolygon(corners);
  }
  painter.setBrush(Qt::NoBrush);

  painter.setFont(m_titleFont);
  const auto drawPart = [&](const Rect& place, const QString& text) {
    painter.drawText(ToQRect(place), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
  };
  drawPart(m_layout.month, m_monthName);
  if (!IsEditingYear()) drawPart(m_layout.year, QString::number(m_shownYear));

  painter.setFont(font());
  // The right text is never cut; the left one is shortened for it.
  const auto drawBand = [&](const Rect& band, const QString& left, const QString& right, bool isLeftCut) {
    const QRect area = ToQRect(band);
    const int rightWidth = right.isEmpty() ? 0 : painter.fontMetrics().horizontalAdvance(right) + kBandGap;
    const int room = area.width() - rightWidth;
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, right);
    if (isLeftCut || painter.fontMetrics().horizontalAdvance(left) <= room)
      painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                       painter.fontMetrics().elidedText(left, Qt::ElideRight, room));
  };
  drawBand(m_layout.topBand, CivilYearText(), EraText(), false);
  drawBand(m_layout.bottomBand, LeftText(), RightText(), true);
}

void CHeaderWnd::resizeEvent(QResizeEvent*) {
  m_hasSize = true;
  LayOut();
}

void CHeaderWnd::changeEvent(QEvent* event) {
  if (m_hasSize && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
    m_fittedSize = QSize();
    LayOut();
  }
  QWidget::changeEvent(event);
}

// Returns the place of a text at the right end of a band.
QRect CHeaderWnd::RightEnd(const Rect& band, const QString& text) const {
  QRect place = ToQRect(band);
  place.setLeft(place.right() + 1 - QFontMetrics(font()).horizontalAdvance(text));
  return place;
}

// Returns in words what EraText() says in short.
QString CHeaderWnd::EraTip() const {
  const int year = CivilYearOf(Selected());
  if (year > 0) return {};
  const std::u16string_view forms = StringText(kTextErasInWords);
  return ToQString(FormatText(Piece(forms, u'|', 0), {YearOfRome(year)}) + u'\n' +
                   FormatText(Piece(forms, u'|', 1), {YearBeforeEra(year)}));
}

QString CHeaderWnd::YearTip() const {
  QStringList lines{ToQString(CenturyText(CivilYearOf(Selected())))};
  lines << EraTip() << CivilYearText() << TablePiece(kTextHeaderTips, 1);
  lines.removeAll(QString());
  return lines.join(QLatin1Char('\n'));
}

// Returns in words what RightText() says in numbers.
QString CHeaderWnd::CountsTip() const {
  QStringList lines{ToQString(DayCountText(Selected()))};
  if (!Display().showWeekNumber) {
    const std::u16string_view forms = StringText(kTextWeekOf);
    lines.prepend(ToQString(FormatText(Piece(forms, u'|', 1), {WeekNumber(Selected())})));
  }
  lines.removeAll(QString());
  return lines.join(QLatin1Char('\n'));
}

// Returns the tip at a point, and sets the area in which the tip stays the same.
QString CHeaderWnd::TipAt(QPoint position, QRect* area) const {
  const auto isIn = [&](const Rect& place) {
    if (!place.Contains(position.x(), position.y())) return false;
    *area = ToQRect(place);
    return true;
  };
  if (isIn(m_layout.month)) return TablePiece(kTextHeaderTips, 0);
  if (isIn(m_layout.year)) return YearTip();
  if (isIn(m_layout.previousTip)) return TableText(kTextPrevious);
  if (isIn(m_layout.nextTip)) return TableText(kTextNext);
  for (const auto& [place, tip] : {std::pair(RightEnd(m_layout.topBand, EraText()), EraTip()),
                                   std::pair(RightEnd(m_layout.bottomBand, RightText()), CountsTip())}) {
    if (!place.contains(position)) continue;
    *area = place;
    return tip;
  }
  return {};
}

bool CHeaderWnd::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* const help = static_cast<QHelpEvent*>(event);
    QRect area;
    const QString tip = TipAt(help->pos(), &area);
    if (tip.isEmpty()) {
      QToolTip::hideText();
      event->ignore();
    } else {
      QToolTip::showText(help->globalPos(), TipMarkup(tip), this, area);
    }
    return true;
  }
  return QWidget::event(event);
}

}  // namespace orbisol
