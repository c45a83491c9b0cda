#include "ui/editors/events_dialog.h"

#include <QScopedValueRollback>

#include <algorithm>

#include "content/rule_text.h"
#include "core/date.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/editors/row_list.h"
#include "ui/toolkit/colors.h"
#include "ui/toolkit/field_note.h"
#include "ui/toolkit/plain_text.h"
#include "ui/toolkit/spoken_value.h"
#include "ui/window/help.h"
#include "ui_events.h"

namespace orbisol {
namespace {

constexpr int kYearsTold = 3;  // of an event, below its fields
constexpr int kMonths = 12;
constexpr int kKinds = 8;
constexpr int kOrdinals = 5;

// A change of the vacation periods that comes with imported holidays.
class CVacationsStep : public QUndoCommand {
 public:
  CVacationsStep(std::vector<HolidayPeriod>& live, std::vector<HolidayPeriod> after)
      : m_live(live), m_other(std::move(after)) {}
  void redo() override { m_live.swap(m_other); }
  void undo() override { m_live.swap(m_other); }

 private:
  std::vector<HolidayPeriod>& m_live;
  std::vector<HolidayPeriod> m_other;
};

void FillFromTable(QComboBox& box, int id, int count) {
  for (int i = 0; i < count; ++i) box.addItem(TablePiece(id, i));
}

QString LongestPiece(int id, int count) {
  QString longest;
  for (int i = 0; i < count; ++i)
    if (const QString piece = TablePiece(id, i); piece.size() > longest.size()) longest = piece;
  return longest;
}

}  // namespace

CEventsDialog::CEventsDialog(const EditorServices& services, const CalendarContent& content, PackedDate day,
                             int year, QWidget* parent)
    : CEditorDialog(services, parent),
      m_form(std::make_unique<Ui::EventsForm>()),
      m_events(new CEventList(Undo(), year)),
      m_year(year),
      m_fresh(FieldsForDay(day)),
      m_draft(m_fresh) {
  Ui::EventsForm& form = *m_form;
  form.setupUi(this);
  FillFromTable(*form.kinds, kTextEventFilters, 3);
  FillFromTable(*form.type, kTextRuleKinds, kKinds);
  FillFromTable(*form.ordinal, kTextLongOrdinals, kOrdinals);
  for (int weekday = 1; weekday <= kDaysInWeek; ++weekday)
    form.weekday->addItem(ToQString(WeekdayName(weekday)));
  for (int month = 1; month <= kMonths; ++month) form.month->addItem(ToQString(MonthName(month)));
  for (QComboBox* const box : {form.kinds, form.type, form.ordinal, form.weekday, form.month})
    SpeakValue(*box);
  for (CDateEdit* const date : {form.since, form.until}) date->SetNoneText(TableText(kTextAlways));
  form.nameNote->SetField(*form.name);
  form.dayNote->SetField(*form.day);
  form.since->SetNote(form.sinceNote);
  form.until->SetNote(form.untilNote);
  form.importHolidays->setVisible(static_cast<bool>(services.importHolidays));
  ConnectForm();
  SetUp({form.list, form.filter, form.create, form.remove, form.up, form.down, form.undo, form.redo,
         form.formTitle, form.add, form.apply, form.restore, form.buttons, kTextEventForm, kTextEmptyEvents,
         kHelpEvents},
        std::unique_ptr<CRowsModel>(m_events));
  form.help->setForegroundRole(QPalette::PlaceholderText);
  ColorHelp();
  form.help->setText(LongestPiece(kTextKindHelp, kKinds));
  form.fallsOn->setText(TableText(kTextLongestFallsOn));
  LayOut({4, 6, 4, 2}, {form.name, form.type, form.since, form.until}, {form.help, form.fallsOn});
  ReadContent(content);
  RowsRead();
  FocusFirstField();
}

CEventsDialog::~CEventsDialog() = default;

void CEventsDialog::changeEvent(QEvent* event) {
  CEditorDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_form->help != nullptr) ColorHelp();
}

// Draws what explains the kind of an event like a note.
void CEventsDialog::ColorHelp() {
  QPalette colors;
  colors.setColor(QPalette::PlaceholderText, NoteColor(palette(), QPalette::Window));
  m_form->help->setPalette(colors);
}

void CEventsDialog::ConnectForm() {
  const auto edited = [this] { OnEdited(); };
  const Ui::EventsForm& form = *m_form;
  connect(form.name, &QLineEdit::textChanged, this, edited);
  connect(form.isPublic, &QCheckBox::toggled, this, edited);
  for (const QComboBox* const box : {form.type, form.ordinal, form.weekday, form.month})
    connect(box, &QComboBox::currentIndexChanged, this, edited);
  for (const QSpinBox* const box : {form.day, form.distance})
    connect(box, &QSpinBox::valueChanged, this, edited);
  for (const CDateEdit* const date : {form.since, form.until}) {
    connect(date, &CDateEdit::dateChanged, this, edited);
    connect(date, &CDateEdit::validityChanged, this, edited);
  }
  connect(form.kinds, &QComboBox::currentIndexChanged, this, &CEventsDialog::Filter);
  connect(form.importHolidays, &QPushButton::clicked, this, &CEventsDialog::OnImport);
}

EventFields CEventsDialog::Fields() const {
  const Ui::EventsForm& form = *m_form;
  EventFields fields;
  fields.name = Utf16View(form.name->text());
  fields.isPublic = form.isPublic->isChecked();
  fields.type = DayEventType{form.type->currentIndex()};
  fields.month = form.month->currentIndex() + 1;
  fields.day = form.day->value();
  fields.distance = form.distance->value();
  fields.weekday = form.weekday->currentIndex() + 1;
  fields.weeknum = form.ordinal->currentIndex() + 1;
  fields.since = form.since->Date();
  fields.until = form.until->Date();
  return fields;
}

void CEventsDialog::SetFields(const EventFields& fields) {
  const Ui::EventsForm& form = *m_form;
  {
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    form.name->setText(ToQString(fields.name));
    form.name->setCursorPosition(0);
    form.isPublic->setChecked(fields.isPublic);
    form.type->setCurrentIndex(static_cast<int>(fields.type));
    form.month->setCurrentIndex(fields.month - 1);
    form.day->setValue(fields.day);
    form.distance->setValue(fields.distance);
    form.weekday->setCurrentIndex(fields.weekday - 1);
    form.ordinal->setCurrentIndex(fields.weeknum - 1);
    form.since->SetDate(fields.since);
    form.until->SetDate(fields.until);
  }
  m_shown = Fields();
  ShowKind();
  ShowNotes(false);
}

void CEventsDialog::ShowFields(int row) { SetFields(row < 0 ? m_draft : FieldsOf(m_events->RowAt(row))); }

bool CEventsDialog::IsFormEdited() const {
  return ShownRow() < 0 ? IsEntryBegun() : Fields() != m_shown || !IsFormRead();
}

bool CEventsDialog::IsFormRead() const { return m_form->since->IsValid() && m_form->until->IsValid(); }

// An entry without a name is nothing that could be lost.
bool CEventsDialog::IsEntryBegun() const { return !IsBlank(m_draft.name); }

std::vector<Refusal<EventField>> CEventsDialog::Refusals() const {
  std::vector<Refusal<EventField>> refusals = RefusalsOf(Fields());
  if (IsFormRead()) return refusals;
  // While one of the bounds is no date there is nothing to say of the other.
  std::erase_if(refusals, [](const auto& refusal) { return refusal.field == EventField::kUntil; });
  for (const EventField field : {EventField::kSince, EventField::kUntil}) {
    const CDateEdit& date = field == EventField::kSince ? *m_form->since : *m_form->until;
    if (!date.IsValid()) refusals.push_back({field, std::u16string(Utf16View(date.Error()))});
  }
  return refusals;
}

bool CEventsDialog::IsFormGood() {
  // A number that is still being typed counts as it stands.
  m_form->day->interpretText();
  m_form->distance->interpretText();
  m_form->since->MarkError();
  m_form->until->MarkError();
  ShowNotes(true);
  const auto refusals = Refusals();
  if (refusals.empty()) return true;
  const auto widgetOf = [this](EventField field) -> QWidget* {
    if (field == EventField::kName) return m_form->name;
    if (field == EventField::kDay) return m_form->day;
    return field == EventField::kSince ? m_form->since : m_form->until;
  };
  widgetOf(refusals.front().field)->setFocus();
  return false;
}

// Says what is refused; `all` also what is merely not entered yet.
void CEventsDialog::ShowNotes(bool all) {
  const auto refusals = Refusals();
  const bool isNameAwaited = !all && ShownRow() < 0 && IsBlank(Fields().name);
  m_form->nameNote->Say(isNameAwaited ? QString() : ToQString(ReasonFor(refusals, EventField::kName)));
  m_form->dayNote->Say(ToQString(ReasonFor(refusals, EventField::kDay)));
  // A date field itself says why its text is no date.
  m_form->until->Refuse(m_form->until->IsValid() ? ToQString(ReasonFor(refusals, EventField::kUntil))
                                                 : QString());

  QString words = m_added;
  const bool isOnlyNameRefused = std::all_of(refusals.begin(), refusals.end(), [](const auto& refusal) {
    return refusal.field == EventField::kName;
  });
  if (words.isEmpty() && isOnlyNameRefused) {
    const EventRow* const edited = ShownRow() < 0 ? nullptr : &m_events->RowAt(ShownRow());
    words = ToQString(FallsOnText(RecordsOf(RowOf(Fields(), edited)), m_year, kYearsTold));
  }
  m_form->fallsOn->setText(words);
}

void CEventsDialog::ShowKind() {
  const auto type = DayEventType{m_form->type->currentIndex()};
  QFormLayout& fields = *m_form->fields;
  fields.setRowVisible(m_form->distance, HasDistance(type));
  fields.setRowVisible(m_form->weekdayRow, HasWeekday(type));
  m_form->ordinal->setVisible(HasOrdinal(type));
  m_form->weekday->setVisible(HasWeekday(type));
  m_form->weekdayLabel->setBuddy(HasOrdinal(type) ? m_form->ordinal : m_form->weekday);
  fields.setRowVisible(m_form->dateRow, HasMonth(type));
  m_form->day->setVisible(HasDate(type));
  m_form->month->setVisible(HasMonth(type));
  m_form->dateLabel->setText(TablePiece(kTextDateLabels, HasDate(type) ? 0 : 1));
  m_form->dateLabel->setBuddy(HasDate(type) ? static_cast<QWidget*>(m_form->day) : m_form->month);
  m_form->help->setText(TablePiece(kTextKindHelp, m_form->type->currentIndex()));
}

void CEventsDialog::OnEdited() {
  if (m_isSetting) return;
  m_added.clear();
  if (ShownRow() < 0) m_draft = Fields();
  ShowKind();
  ShowNotes(false);
  FormEdited();
}

void CEventsDialog::TakeFields(int row) {
  const EventFields fields = Fields();
  const QString name = ToQString(Tidied(fields.name));
  if (row >= 0) {
    m_events->Splice(static_cast<std::size_t>(row), 1, {RowOf(fields, &m_events->RowAt(row))},
                     StepText(kStepChange, name));
    SetFields(FieldsOf(m_events->RowAt(row)));
    return;
  }
  const EventRow added = RowOf(fields, nullptr);
  m_events->Splice(m_events->Rows().size(), 0, {added}, StepText(kStepAdd, name));
  m_added = TableText(kTextEventAdded, {added.record.name.View(), TextOf(added)});
  m_draft = m_fresh;
  m_draft.isPublic = fields.isPublic;
  SetFields(m_draft);
}

void CEventsDialog::FocusFirstField() { m_form->name->setFocus(); }

RowKind CEventsDialog::ShownKind() const { return RowKind{m_form->kinds->currentIndex()}; }

void CEventsDialog::ReadContent(const CalendarContent& content) {
  m_vacations = content.vacations;
  m_events->SetRows(RowsOf<DayEvent>(content.dayEvents));
}

CalendarContent CEventsDialog::EditedContent() const {
  return {RecordsOf<DayEvent>(m_events->Rows()), m_vacations};
}

void CEventsDialog::OnImport() {
  if (IsFormEdited() && !TakeForm()) return;
  CalendarContent content = EditedContent();
  if (!Services().importHolidays(this, content)) return;
  MakeStep([&] {
    Undo().beginMacro(StepText(kStepImport, {}));
    m_events->Splice(0, m_events->Rows().size(), RowsOf<DayEvent>(content.dayEvents), {});
    if (content.vacations != m_vacations)
      Undo().push(new CVacationsStep(m_vacations, std::move(content.vacations)));
    Undo().endMacro();
  });
}

}  // namespace orbisol
