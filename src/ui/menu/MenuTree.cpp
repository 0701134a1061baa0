#include "MenuTree.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "MenuTable.h"

namespace coinlight {

namespace {

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

MenuTree::MenuTree(QWidget& owner, QMenuBar& bar) : QObject(&owner) {
    for (const MenuDefinition& definition : Menus()) {
        auto* menu = new QMenu(Text(definition.caption), &owner);
        menu->setObjectName(Text(definition.name));
        m_menus.emplace(std::string(definition.name), menu);
        if (definition.linkIndex >= 0) {
            bar.addMenu(menu);
            m_barMenus.push_back(menu);
            connect(menu, &QMenu::aboutToShow, this,
                    [this, index = definition.linkIndex] { emit AboutToShow(index); });
        }
    }
    for (const MenuEntryDefinition& entry : MenuEntries()) {
        QMenu* menu = m_menus.at(std::string(entry.menu));
        if (!entry.subMenu.empty()) {
            auto found = m_menus.find(entry.subMenu);
            if (found == m_menus.end()) {
                QMenu* sub = menu->addMenu(Text(entry.group));
                sub->setObjectName(Text(entry.subMenu));
                m_subMenuHeads.emplace(std::string(entry.subMenu), sub->menuAction());
                found = m_menus.emplace(std::string(entry.subMenu), sub).first;
            }
            menu = found->second;
        } else if (entry.separatorBefore) {
            menu->addSeparator();
        }
        QAction* action = menu->addAction(Text(entry.caption));
        action->setObjectName(Text(entry.name));
        action->setCheckable(entry.checkable);
        m_actions.emplace(std::string(entry.name), action);
    }
}

QMenu* MenuTree::Menu(std::string_view name) const {
    const auto found = m_menus.find(name);
    return found == m_menus.end() ? nullptr : found->second;
}

QAction* MenuTree::Action(std::string_view name) const {
    const auto found = m_actions.find(name);
    return found == m_actions.end() ? nullptr : found->second;
}

QAction* MenuTree::SubMenuHead(std::string_view name) const {
    const auto found = m_subMenuHeads.find(name);
    return found == m_subMenuHeads.end() ? nullptr : found->second;
}

void MenuTree::Bind(const std::function<Command(std::string_view)>& commandOf) {
    for (const auto& [name, action] : m_actions) {
        Command command = commandOf(name);
        action->setVisible(static_cast<bool>(command));
        if (!command) {
            m_commands.erase(name);
            continue;
        }
        const bool first = m_commands.find(name) == m_commands.end();
        m_commands[name] = std::move(command);
        if (first) {
            connect(action, &QAction::triggered, this, [this, key = name] {
                emit EntryChosen(QString::fromStdString(key));
                // Looked up at the click: a later Bind may have given the entry another.
                if (const auto found = m_commands.find(key); found != m_commands.end()) {
                    found->second();
                }
            });
        }
    }
    HideEmptyMenus();
}

bool MenuTree::HasCommand(std::string_view name) const {
    return m_commands.find(name) != m_commands.end();
}

bool MenuTree::HasEntries(const QMenu* menu) const {
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator() && action->isVisible()) {
            return true;
        }
    }
    return false;
}

void MenuTree::HideEmptyMenus() {
    // Sub-menus first: an empty one must not keep its menu alive.
    for (const auto& [name, head] : m_subMenuHeads) {
        head->setVisible(HasEntries(head->menu()));
    }
    for (QMenu* menu : m_barMenus) {
        menu->menuAction()->setVisible(HasEntries(menu));
    }
}

} // namespace coinlight
