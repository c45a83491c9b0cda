#include "ui/window/save_calendar.h"

#include <QStringList>

#include <functional>

#include "resources/strings.h"
#include "ui/toolkit/messages.h"
#include "ui/toolkit/plain_text.h"

namespace orbisol {
namespace {

enum class Answer { kNone, kKeepBoth, kReload, kReplace, kAgain };

// Names that stand in the questions.
struct SaveNames {
  std::u16string name;
  std::u16string path;
  std::u16string freeName;
};

// Asks a question. The buttons have the texts of the list `buttonTexts`, the first being the default, and
// give `answers`.
Answer Ask(QWidget* parent, const QString& question, int buttonTexts, const SaveNames& names,
           std::initializer_list<Answer> answers) {
  QStringList buttons;
  for (int i = 0; i < static_cast<int>(answers.size()); ++i) {
    const std::u16string_view button = Piece(StringText(buttonTexts), u'|', i);
    buttons.append(ToQString(FormatText(button, {names.freeName})));
  }
  const int pressed = Messages().Choose(parent, question, buttons);
  return pressed < 0 ? Answer::kNone : answers.begin()[pressed];
}

Answer AskAboutChange(QWidget* parent, const SaveNames& names) {
  const QString question = TableText(kTextCalendarChanged, {names.name, names.path, names.freeName});
  return Ask(parent, question, kTextCalendarChangedButtons, names,
             {Answer::kKeepBoth, Answer::kReload, Answer::kReplace});
}

Answer AskAboutFailure(QWidget* parent, const SaveNames& names, bool exists) {
  const int text = exists ? kTextCalendarNotWritten : kTextCalendarNotMade;
  return Ask(parent, TableText(text, {names.name, names.path}), kTextCalendarNotWrittenButtons, names,
             {Answer::kKeepBoth, Answer::kAgain});
}

// Keeps what is in force as an earlier version before it is given up. Where that fails the user decides.
Answer KeepBeforeReload(QWidget* parent, CCalendarStore& calendars, const SaveNames& names,
                        const CalendarFile& inForce) {
  if (calendars.KeepVersion(names.name, inForce)) return Answer::kReload;
  return Ask(parent, TableText(kTextChangesNotKept, {names.name}), kTextChangesNotKeptButtons, names,
             {Answer::kKeepBoth, Answer::kReload});
}

IfChanged ChoiceOf(Answer answer) {
  if (answer == Answer::kKeepBoth) return IfChanged::kKeepBoth;
  return answer == Answer::kReplace ? IfChanged::kOverwrite : IfChanged::kRefuse;
}

// Each turn ends with a saved file, with the user's decision not to save, or with another try.
SavedFromWindow SaveOrAsk(QWidget* parent, CCalendarStore& calendars, const std::u16string& name,
                          const CalendarFile& inForce, const std::function<SaveOutcome(IfChanged)>& save) {
  SavedFromWindow saved;
  for (IfChanged ifChanged = IfChanged::kRefuse;;) {
    const SaveOutcome outcome = save(ifChanged);
    saved.keyStored = outcome.key;
    if (IsInPlace(outcome.calendar)) {
      saved.end = SaveEnd::kSaved;
      if (outcome.calendar == WriteResult::kNotSynced)
        Messages().ShowError(
            parent, TableText(kTextCalendarNotSynced, {outcome.name, calendars.PathOf(outcome.name)}));
      return saved;
    }

    const SaveNames names{name, calendars.PathOf(name), calendars.FreeName(name)};
    Answer answer = outcome.calendar == WriteResult::kChanged
                        ? AskAboutChange(parent, names)
                        : AskAboutFailure(parent, names, calendars.Exists(name));
    if (answer == Answer::kReload) answer = KeepBeforeReload(parent, calendars, names, inForce);
    if (answer == Answer::kNone) return saved;
    if (answer == Answer::kReload) {
      CalendarFile file;
      if (calendars.Load(name, file) == LoadResult::kLoaded) {
        saved.end = SaveEnd::kReloaded;
        saved.reloaded = std::move(file);
        return saved;
      }
    }
    ifChanged = ChoiceOf(answer);
  }
}

}  // namespace

SavedFromWindow SaveCalendarFromWindow(QWidget* parent, const SavePlaces& places, DisplaySettings& display,
                                       const CalendarRules& rules, const CalendarContent& content,
                                       std::optional<std::u16string_view> newName) {
  const std::u16string name = CalendarNameOrDefault(display.calendarName.View());
  return SaveOrAsk(
      parent, places.calendars, name, {display.Look(), rules, content, {}}, [&](IfChanged ifChanged) {
        return SaveSettings(places.store, places.calendars, display, rules, content, ifChanged, newName);
      });
}

SavedFromWindow RestoreCalendarFromWindow(QWidget* parent, const SavePlaces& places, DisplaySettings& display,
                                          const CalendarFile& inForce, std::string_view version) {
  const std::u16string name = CalendarNameOrDefault(display.calendarName.View());
  return SaveOrAsk(parent, places.calendars, name, inForce, [&](IfChanged ifChanged) {
    return RestoreSettings(places.store, places.calendars, display, version, ifChanged);
  });
}

KeptEnd SaveUnasked(const SavePlaces& places, DisplaySettings& display, const CalendarRules& rules,
                    const CalendarContent& content) {
  const SaveOutcome outcome =
      SaveSettings(places.store, places.calendars, display, rules, content, IfChanged::kKeepBoth);
  if (IsInPlace(outcome.calendar)) return KeptEnd::kSaved;
  const std::u16string name = CalendarNameOrDefault(display.calendarName.View());
  const bool isAside = places.calendars.PutAside(name, {display.Look(), rules, content, {}});
  return isAside ? KeptEnd::kAside : KeptEnd::kNowhere;
}

void SayTakenBack(QWidget* parent, const std::vector<TakenBack>& calendars) {
  for (const TakenBack& taken : calendars)
    Messages().ShowError(parent, taken.newName.empty()
                                     ? TableText(kTextStillAside, {taken.name, taken.path})
                                     : TableText(kTextTakenBack, {taken.name, taken.newName}));
}

void PutInForce(CalendarFile calendar) {
  Display().Look() = calendar.look;
  Display().changed = false;
  Rules() = calendar.rules;
  Content() = std::move(calendar.content);
}

}  // namespace orbisol
