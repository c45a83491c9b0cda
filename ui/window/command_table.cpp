#include "ui/window/command_table.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include <utility>

#include "resources/strings.h"
#include "ui/toolkit/plain_text.h"
#include "ui/window/tool_icons.h"

namespace orbisol {

CCommandTable::CCommandTable(QObject* owner, std::function<void(CommandId)> run)
    : QObject(owner), m_run(std::move(run)) {}

QAction* CCommandTable::Make(const MenuItem& item) {
  auto* const action = new QAction(ToQString(item.text), this);
  const std::u16string_view texts = StringText(item.command);
  const std::u16string_view status = Piece(texts, u'\n', 0);
  const std::u16string_view tip = Piece(texts, u'\n', 1);
  action->setStatusTip(ToQString(status));
  action->setToolTip(ToQString(tip.empty() ? status : tip));
  if (!item.shortcut.empty())
    action->setShortcut(QKeySequence(ToQString(item.shortcut), QKeySequence::PortableText));
  action->setCheckable(item.isChecked);
  action->setIconVisibleInMenu(false);
  action->setData(static_cast<int>(item.command));
  connect(action, &QAction::triggered, this, [this, command = item.command] { m_run(command); });
  m_actions[item.command] = action;
  return action;
}

void CCommandTable::FillMenuBar(QMenuBar& bar, std::span<const Menu> menus) {
  for (const Menu& menu : menus) {
    QMenu* const made = bar.addMenu(ToQString(menu.title));
    for (const MenuItem& item : menu.items) {
      if (item.command == kNoCommand) {
        made->addSeparator();
      } else {
        made->addAction(Make(item));
      }
    }
  }
  // The toolkit leaves this key of desktops out.
  auto* const key = new QShortcut(QKeySequence(Qt::Key_F10), &bar);
  connect(key, &QShortcut::activated, &bar, [&bar] {
    QAction* const first = bar.actions().front();
    bar.setActiveAction(first);
    first->menu()->setActiveAction(first->menu()->actions().front());
  });
}

void CCommandTable::FillToolBar(QToolBar& bar, std::span<const ToolItem> items) {
  for (const ToolItem& item : items) {
    if (item.command == kNoCommand) {
      bar.addSeparator();
    } else if (QAction* const action = Action(item.command)) {
      action->setIcon(ToolIcon(item.icon));
      bar.addAction(action);
    }
  }
}

QAction* CCommandTable::Action(CommandId command) const {
  const auto found = m_actions.find(command);
  return found == m_actions.end() ? nullptr : found->second;
}

void CCommandTable::SetEnabled(CommandId command, bool isEnabled) {
  if (QAction* const action = Action(command)) action->setEnabled(isEnabled);
}

void CCommandTable::SetChecked(CommandId command, bool isChecked) {
  if (QAction* const action = Action(command)) action->setChecked(isChecked);
}

}  // namespace orbisol
