// "Renommer un calendrier": asks for another name and takes none that a calendar cannot have.
//
//   CRenameCalendarDlg dialog(u"Famille", otherNames, this);
//   if (dialog.exec() == QDialog::Accepted) actions.Rename(u"Famille", dialog.Name());
#pragma once

#include <QDialog>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Ui {  // NOLINT(readability-identifier-naming): as the forms are generated
class RenameCalendar;
}

namespace orbisol {

class CNameCheck;

class CRenameCalendarDlg : public QDialog {
  Q_OBJECT

 public:
  CRenameCalendarDlg(std::u16string_view name, std::vector<std::u16string> others, QWidget* parent = nullptr);
  ~CRenameCalendarDlg() override;

  std::u16string Name() const;

  // Ends the dialog; where the name is refused it stays and says why at the field.
  void accept() override;

 private:
  std::unique_ptr<Ui::RenameCalendar> m_form;
  CNameCheck* m_name;
};

}  // namespace orbisol
