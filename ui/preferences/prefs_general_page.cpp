#include "ui/preferences/prefs_general_page.h"

#include <QMenu>

#include "core/date.h"
#include "core/date_text.h"
#include "core/national_reforms.h"
#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/typed_date.h"
#include "ui_prefs_general.h"

namespace orbisol {
namespace {

enum RowRefusal { kEmptyRow, kRowAfterReform, kRowNotLater };  // pieces of kTextRowRefusals
enum RowName { kDateName, kPlusOneName, kNoneName };           // pieces of kTextCivilYearNames
enum PresetText { kCertainReform, kDoubtfulReform };           // pieces of kTextReformPreset

constexpr int kNoteLines = 2;

int UserOrder() { return CurrentPlatform().dateOrder; }

// Returns rules under which every date is Gregorian, as the first day of that calendar is, or Julian, as the
// years are in which civil years began on other days.
CalendarRules GregorianThroughout() {
  CalendarRules rules;
  rules.ApplyGregorianStart(kFirstDateShown);
  return rules;
}
CalendarRules JulianThroughout() {
  CalendarRules rules;
  rules.ApplyGregorianStart(Pack(kLastYearShown + 1, 1, 1));
  return rules;
}

QString PresetTitle(const NationalReform& reform) {
  const int text = reform.isDoubtful ? kDoubtfulReform : kCertainReform;
  return ToQString(FormatText(Piece(StringText(kTextReformPreset), u'|', text),
                              {reform.country, FieldDate(reform.lastJulian, UserOrder()),
                               FieldDate(reform.firstGregorian, UserOrder())}));
}

// Fills in the user's order of dates, which stays on one line.
void ShowPattern(QLabel& label) {
  QString text = ToQString(WithDatePattern(Utf16View(label.text()), UserOrder()));
  const QChar joiner(u'\u2060');
  label.setText(text.replace(QLatin1Char('/'), joiner + QLatin1Char('/') + joiner));
}

RowRefusal RefusalOf(PackedDate from, PackedDate start) {
  if (from == 0) return kEmptyRow;
  return from > start ? kRowAfterReform : kRowNotLater;
}

}  // namespace

CPrefsGeneralPage::CPrefsGeneralPage(Preferences& edited)
    : CPrefsPage(kHelpConfiguration), m_edited(edited), m_form(new Ui::PrefsGeneral) {
  m_form->setupUi(this);
  for (QLabel* const label : {m_form->startHelp, m_form->yearsHelp2}) ShowPattern(*label);
  m_rows = {Row{m_form->rowLabel1, m_form->row1, m_form->plusOne1},
            Row{m_form->rowLabel2, m_form->row2, m_form->plusOne2},
            Row{m_form->rowLabel3, m_form->row3, m_form->plusOne3},
            Row{m_form->rowLabel4, m_form->row4, m_form->plusOne4}};
  m_form->start->SetRules(GregorianThroughout());
  int number = 1;
  for (const Row& row : m_rows) {
    const auto name = [&](RowName piece) {
      return ToQString(FormatText(Piece(StringText(kTextCivilYearNames), u'|', piece), {number}));
    };
    row.from->SetRules(JulianThroughout());
    row.from->SetNoneText(name(kNoneName));
    row.from->setAccessibleName(name(kDateName));
    row.label->setAccessibleName(name(kDateName));  // readers prefer the name of a label
    row.plusOne->setAccessibleName(name(kPlusOneName));
    ++number;
  }
  m_form->note->setTextFormat(Qt::PlainText);
  m_form->note->setMinimumHeight(kNoteLines * fontMetrics().lineSpacing());  // fields stay where they are
  MakeReformPresets(*m_form->reformPresets);
  MakeYearPresets(*m_form->yearPresets);
  Fill();
  Connect();
}

CPrefsGeneralPage::~CPrefsGeneralPage() = default;

void CPrefsGeneralPage::Fill() {
  const CalendarRules& rules = m_edited.rules;
  m_form->iso8601->setChecked(rules.iso8601);
  m_form->proleptic->setChecked(rules.proleptic);
  m_form->start->SetDate(rules.startGregorian);
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    m_rows[i].from->SetDate(rules.firstDayOfYear[i].from);
    m_rows[i].plusOne->setChecked(rules.firstDayOfYear[i].plusOne);
  }
}

void CPrefsGeneralPage::Connect() {
  connect(m_form->iso8601, &QCheckBox::toggled, this, &CPrefsGeneralPage::Take);
  connect(m_form->proleptic, &QCheckBox::toggled, this, &CPrefsGeneralPage::Take);
  connect(m_form->start, &CDateEdit::dateChanged, this, &CPrefsGeneralPage::Take);
  connect(m_form->start, &CDateEdit::validityChanged, this, &CPrefsGeneralPage::Take);
  connect(m_form->rome, &QPushButton::clicked, this, [this] { m_form->start->SetDate(kRomanReform); });
  for (const Row& row : m_rows) {
    connect(row.from, &CDateEdit::dateChanged, this, &CPrefsGeneralPage::Take);
    connect(row.from, &CDateEdit::validityChanged, this, &CPrefsGeneralPage::Take);
    connect(row.plusOne, &QCheckBox::toggled, this, &CPrefsGeneralPage::Take);
  }
}

void CPrefsGeneralPage::MakeReformPresets(QPushButton& button) {
  auto* const menu = new QMenu(&button);
  for (const NationalReform& reform : NationalReforms()) {
    QAction* const action = menu->addAction(MenuText(Utf16View(PresetTitle(reform))));
    connect(action, &QAction::triggered, this,
            [this, first = reform.firstGregorian] { m_form->start->SetDate(first); });
  }
  button.setMenu(menu);
}

void CPrefsGeneralPage::MakeYearPresets(QPushButton& button) {
  auto* const menu = new QMenu(&button);
  for (const CivilYearStyle& style : CivilYearStyles()) {
    QAction* const action = menu->addAction(MenuText(style.name));
    connect(action, &QAction::triggered, this, [this, &style] { FillRows(style); });
  }
  button.setMenu(menu);
}

void CPrefsGeneralPage::FillRows(const CivilYearStyle& style) {
  m_isFilling = true;
  if (style.reform != 0) m_form->start->SetDate(style.reform);
  const PackedDate start = m_form->start->Date();
  const auto rows = CivilYearRowsOf(style, start);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    m_rows[i].from->SetDate(rows[i].from);
    m_rows[i].plusOne->setChecked(rows[i].plusOne);
  }
  m_isFilling = false;
  Take();
  if (IsClosedEarly(style, start)) Say(TableText(kTextClosedEarly, {Unpack(rows[0].from).year}));
}

// Puts what the controls say into the record. A field that holds no date keeps its last one there.
void CPrefsGeneralPage::Take() {
  if (m_isFilling) return;
  CalendarRules& rules = m_edited.rules;
  rules.iso8601 = m_form->iso8601->isChecked();
  rules.proleptic = m_form->proleptic->isChecked();
  rules.ApplyGregorianStart(GregorianStartOrDefault(m_form->start->Date()));
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    const PackedDate from = m_rows[i].from->Date();
    rules.firstDayOfYear[i] = {from, from != 0 && m_rows[i].plusOne->isChecked()};
  }
  Say({});
  emit settingsChanged();
}

QWidget* CPrefsGeneralPage::FaultyField() {
  if (!m_form->start->IsValid()) {
    Say(m_form->start->Error(), m_form->start);
    return m_form->start;
  }
  for (std::size_t i = m_rows.size(); i-- > 0;) {
    CDateEdit* const from = m_rows[i].from;
    if (from->IsValid()) continue;
    Say(from->Error(), from);
    return from;
  }
  const CalendarRules& rules = m_edited.rules;
  const int bad = FirstBadRow({rules.firstDayOfYear, kCivilYearRows}, rules.startGregorian);
  if (bad < 0) return nullptr;
  const RowRefusal refusal = RefusalOf(rules.firstDayOfYear[bad].from, rules.startGregorian);
  CDateEdit* const field = m_rows[static_cast<std::size_t>(bad)].from;
  Say(TablePiece(kTextRowRefusals, refusal), field);
  return field;
}

// Shows a note below the fields, and at the field that it is about.
void CPrefsGeneralPage::Say(const QString& note, const CDateEdit* field) {
  m_form->note->setText(note);
  m_form->start->Refuse(field == m_form->start ? note : QString());
  for (const Row& row : m_rows) row.from->Refuse(field == row.from ? note : QString());
}

}  // namespace orbisol
