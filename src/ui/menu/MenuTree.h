#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <QObject>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace coinlight {

/// The menus and entries of the menu table as Qt objects, found by their names. The menu bar
/// and the menu links pop up the same menus, so both show one tree.
class MenuTree final : public QObject {
    Q_OBJECT
public:
    using Command = std::function<void()>;

    /// Makes every menu (parented to `owner`) and entry; the top menus go on `bar`.
    MenuTree(QWidget& owner, QMenuBar& bar);

    QMenu* Menu(std::string_view name) const;
    QAction* Action(std::string_view name) const;
    /// The sub-menu heads ("mnuReportsROMs") and the menus they open.
    QAction* SubMenuHead(std::string_view name) const;
    /// The five menus of the bar, in order; the index is that of their link.
    const std::vector<QMenu*>& BarMenus() const { return m_barMenus; }

    /// Gives each entry the command `commandOf` names for it. An entry without one is hidden,
    /// never shown doing nothing; a sub-menu or menu left without entries goes with it.
    void Bind(const std::function<Command(std::string_view)>& commandOf);
    bool HasCommand(std::string_view name) const;
    /// Whether a menu shows anything.
    bool HasEntries(const QMenu* menu) const;

signals:
    /// Before a menu of the bar comes up, by its link index: the owner sets its entries.
    void AboutToShow(int linkIndex);
    /// An entry was chosen, before its command runs.
    void EntryChosen(const QString& name);

private:
    void HideEmptyMenus();

    std::map<std::string, QMenu*, std::less<>> m_menus;
    std::map<std::string, QAction*, std::less<>> m_actions;
    std::map<std::string, QAction*, std::less<>> m_subMenuHeads;
    std::map<std::string, Command, std::less<>> m_commands;
    std::vector<QMenu*> m_barMenus;
};

} // namespace coinlight
