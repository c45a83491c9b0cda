// "Rechercher...": the days whose cells show a word, as a list from year to year. It stays open beside the
// calendar.
//
//   CFindDayDialog dialog(&frame);
//   connect(&dialog, &CFindDayDialog::dayFound, this, [this](PackedDate day) { … });
//   dialog.Open(Content(), Selected().Packed());
//   dialog.FindNext(Selected().Packed());
//
// All searching is done some milliseconds at a time, so that no window ever waits. The list fills while the
// word is typed; a bar shows how far it is, and "Arrêter" ends it. It holds at most kMostHits rows, and says
// when there are more; "Suivant" and "Précédent" find all days.
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>
#include <optional>

#include "content/content_search.h"
#include "core/calendar_config.h"

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class FindDayDialog;
}

namespace orbisol {

class CHitsModel;

constexpr int kMostHits = 50000;  // rows of the list

class CFindDayDialog : public QDialog {
  Q_OBJECT

 public:
  explicit CFindDayDialog(QWidget* parent = nullptr);
  ~CFindDayDialog() override;

  // Shows the window, and searches anew in a content that may have changed. `selected` is the day from which
  // "next" and "previous" count, until another is found.
  void Open(const CalendarContent& content, PackedDate selected);

  // Takes over the content and the rules in force; where either differs the list is made anew.
  void SetContent(const CalendarContent& content);

  // Tells that another day was selected in the calendar, which ends the way to the nearest one.
  void SetSelected(PackedDate selected);

  // Go to the nearest day that shows the word and emit dayFound(); without a word the window is shown
  // instead. Where there is none on that side the window says so.
  void FindNext() { FindNearest(1); }
  void FindPrevious() { FindNearest(-1); }

  bool IsSearching() const { return m_slices.isActive() || m_steps.isActive(); }

 signals:
  void dayFound(orbisol::PackedDate day);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Start();
  void SearchSlice();
  void Stop();
  void Finish(bool isWhole);
  void FindNearest(int step);
  void StepSlice();
  void Show(const SearchHit& hit);
  void ShowRow(int row);

  std::unique_ptr<Ui::FindDayDialog> m_form;
  CHitsModel* m_hits;
  CalendarContent m_content;
  std::optional<CContentSearch> m_search;
  CalendarRules m_rules;  // that the hits follow
  QTimer m_slices;        // of the list
  int m_year = 0;         // the next one to be searched
  QTimer m_steps;         // of the way to the nearest day
  int m_step = 0;         // 1 to the next day, -1 to the previous one
  int m_stepYear = 0;     // the next one to be looked at
  PackedDate m_selected = 0;
};

}  // namespace orbisol
