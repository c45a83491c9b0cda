// "Rechercher...": the days whose cells show a word, as a list from year to year. It stays open beside the
// calendar.
//
//   CFindDayDialog dialog(&frame);
//   connect(&dialog, &CFindDayDialog::dayFound, this, [this](PackedDate day) { … });
//   dialog.Open(Content(), Selected().Packed());
//   dialog.FindNext(Selected().Packed());
//
// The list fills while the word is typed, some milliseconds at a time, so that the window never waits; a bar
// shows how far it is, and "Arrêter" ends it. The list holds at most kMostHits rows, and says when there are
// more; "Suivant" and "Précédent" find all days.
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>
#include <optional>

#include "content/content_search.h"

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

  // Takes over a content; where it differs the list is made anew.
  void SetContent(const CalendarContent& content);

  // Tells that another day was selected in the calendar.
  void SetSelected(PackedDate selected) { m_selected = selected; }

  // Find the nearest day that shows the word and emit dayFound(); without a word the window is shown instead.
  // Where there is none on that side the window says so.
  void FindNext();
  void FindPrevious();

  bool IsSearching() const { return m_slices.isActive(); }

 signals:
  void dayFound(orbisol::PackedDate day);

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void Start();
  void SearchSlice();
  void Stop();
  void Finish(bool isWhole);
  void Show(const std::optional<SearchHit>& hit);
  void ShowRow(int row);

  std::unique_ptr<Ui::FindDayDialog> m_form;
  CHitsModel* m_hits;
  CalendarContent m_content;
  std::optional<CContentSearch> m_search;
  QTimer m_slices;
  int m_year = 0;  // the next one to be searched
  PackedDate m_selected = 0;
};

}  // namespace orbisol
