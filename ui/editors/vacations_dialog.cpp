#include "ui/editors/vacations_dialog.h"

#include <QScopedValueRollback>

#include "content/rule_text.h"
#include "core/date.h"
#include "core/date_text.h"
#include "resources/strings.h"
#include "ui/editors/row_list.h"
#include "ui/toolkit/field_note.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/help.h"
#include "ui_vacations.h"

namespace orbisol {

CVacationsDialog::CVacationsDialog(const EditorServices& services, const CalendarContent& content,
                                   PackedDate from, PackedDate to, QWidget* parent)
    : CEditorDialog(services, parent),
      m_form(std::make_unique<Ui::VacationsForm>()),
      m_periods(new CPeriodList(Undo())),
      m_fresh{{}, from, to},
      m_draft(m_fresh) {
  Ui::VacationsForm& form = *m_form;
  form.setupUi(this);
  form.titleNote->SetField(*form.title);
  form.from->SetNote(form.fromNote);
  form.to->SetNote(form.toNote);
  const auto edited = [this] {
    if (m_isSetting) return;
    if (ShownRow() < 0) m_draft = Fields();
    ShowNotes(false);
    FormEdited();
  };
  connect(form.title, &QLineEdit::textChanged, this, edited);
  for (CDateEdit* const date : {form.from, form.to}) {
    connect(date, &CDateEdit::dateChanged, this, edited);
    connect(date, &CDateEdit::validityChanged, this, edited);
  }
  SetUp({form.list, form.filter, form.create, form.remove, form.up, form.down, form.undo, form.redo,
         form.formTitle, form.add, form.apply, form.restore, form.buttons, kTextPeriodForm, kTextEmptyPeriods,
         kHelpVacations},
        std::unique_ptr<CRowsModel>(m_periods));
  form.length->setText(TableText(kTextLongestLength));
  LayOut({4, 3, 3, 1, 4}, {form.title, form.from, form.to}, {form.length});
  ReadContent(content);
  RowsRead();
  FocusFirstField();
}

CVacationsDialog::~CVacationsDialog() = default;

PeriodFields CVacationsDialog::Fields() const {
  const Ui::VacationsForm& form = *m_form;
  return {std::u16string(Utf16View(form.title->text())), form.from->text().isEmpty() ? 0 : form.from->Date(),
          form.to->text().isEmpty() ? 0 : form.to->Date()};
}

void CVacationsDialog::SetFields(const PeriodFields& fields) {
  {
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    m_form->title->setText(ToQString(fields.title));
    m_form->title->setCursorPosition(0);
    m_form->from->SetDate(fields.from);
    m_form->to->SetDate(fields.to);
  }
  m_shown = Fields();
  ShowNotes(false);
}

void CVacationsDialog::ShowFields(int row) { SetFields(row < 0 ? m_draft : FieldsOf(m_periods->RowAt(row))); }

bool CVacationsDialog::IsFormEdited() const {
  return ShownRow() < 0 ? IsEntryBegun() : Fields() != m_shown || !IsFormRead();
}

bool CVacationsDialog::IsFormRead() const {
  const auto isRead = [](const CDateEdit& date) { return date.IsValid() || date.text().isEmpty(); };
  return isRead(*m_form->from) && isRead(*m_form->to);
}

bool CVacationsDialog::IsEntryBegun() const {
  return m_draft != m_fresh || (ShownRow() < 0 && !IsFormRead());
}

// A period that was drawn in the month is meant to be added.
bool CVacationsDialog::IsEntryWanted() const { return IsEntryBegun() || m_fresh.from != 0; }

std::vector<Refusal<PeriodField>> CVacationsDialog::Refusals() const {
  std::vector<Refusal<PeriodField>> refusals = RefusalsOf(Fields());
  if (IsFormRead()) return refusals;
  // While one of the dates is none there is nothing to say of the other.
  std::erase_if(refusals, [](const auto& refusal) { return refusal.field != PeriodField::kTitle; });
  for (const PeriodField field : {PeriodField::kFrom, PeriodField::kTo}) {
    const CDateEdit& date = field == PeriodField::kFrom ? *m_form->from : *m_form->to;
    if (!date.IsValid() && !date.text().isEmpty())
      refusals.push_back({field, std::u16string(Utf16View(date.Error()))});
  }
  return refusals;
}

bool CVacationsDialog::IsFormGood() {
  for (CDateEdit* const date : {m_form->from, m_form->to})
    if (!date->text().isEmpty()) date->MarkError();
  ShowNotes(true);
  const auto refusals = Refusals();
  if (refusals.empty()) return true;
  const auto widgetOf = [this](PeriodField field) -> QWidget* {
    if (field == PeriodField::kTitle) return m_form->title;
    return field == PeriodField::kFrom ? m_form->from : m_form->to;
  };
  widgetOf(refusals.front().field)->setFocus();
  return false;
}

// Says what is refused; `all` also what is merely not entered yet.
void CVacationsDialog::ShowNotes(bool all) {
  const auto refusals = Refusals();
  const PeriodFields fields = Fields();
  const bool isAwaited = !all && (fields.from == 0 || fields.to == 0);
  m_form->titleNote->Say(ToQString(ReasonFor(refusals, PeriodField::kTitle)));
  // A date field itself says why its text is no date.
  const auto refuse = [&](CDateEdit& date, PeriodField field) {
    const bool isSilent = isAwaited || (!date.IsValid() && !date.text().isEmpty());
    date.Refuse(isSilent ? QString() : ToQString(ReasonFor(refusals, field)));
  };
  refuse(*m_form->from, PeriodField::kFrom);
  refuse(*m_form->to, PeriodField::kTo);
  m_form->length->setText(refusals.empty() ? LengthText() : QString());
}

// The weekdays of both ends and the length of the period in the fields, and the first period that it
// overlaps.
QString CVacationsDialog::LengthText() const {
  const PeriodFields fields = Fields();
  const auto dayText = [](PackedDate ymd) {
    return WeekdayName(Date(ymd).Weekday(true)) + u' ' + PlainDateText(ymd);
  };
  QString text = TableText(kTextPeriodLength,
                           {dayText(fields.from), dayText(fields.to), LengthOf({fields.from, fields.to})});
  for (int row = 0; row < m_periods->rowCount({}); ++row) {
    const PeriodRow& other = m_periods->RowAt(row);
    if (row == ShownRow() || !other.range || DayOrder(fields.to) < DayOrder(other.range->first) ||
        DayOrder(other.range->last) < DayOrder(fields.from))
      continue;
    text += QLatin1Char('\n') + ToQString(UpperFirst(Utf16View(OverlapText(other)))) + QLatin1Char('.');
    break;
  }
  return text;
}

void CVacationsDialog::TakeFields(int row) {
  const PeriodFields fields = Fields();
  const PeriodRow period = RowOf(fields);
  const std::u16string_view title = period.record.title.View();
  const QString name = title.empty() ? ToQString(PlainDateText(fields.from)) : ToQString(title);
  if (row >= 0) {
    m_periods->Splice(static_cast<std::size_t>(row), 1, {period}, StepText(kStepChange, name));
    SetFields(FieldsOf(m_periods->RowAt(row)));
    return;
  }
  m_periods->Splice(m_periods->Rows().size(), 0, {period}, StepText(kStepAdd, name));
  m_fresh = {};
  m_draft = {};
  SetFields(m_draft);
}

void CVacationsDialog::FocusFirstField() { m_form->title->setFocus(); }

void CVacationsDialog::ReadContent(const CalendarContent& content) {
  m_events = content.dayEvents;
  m_periods->SetRows(RowsOf<HolidayPeriod>(content.vacations));
}

CalendarContent CVacationsDialog::EditedContent() const {
  return {m_events, RecordsOf<HolidayPeriod>(m_periods->Rows())};
}

}  // namespace orbisol
