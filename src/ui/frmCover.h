#pragma once

#include <QColor>
#include <QLabel>
#include <QWidget>

namespace coinlight {

/// A plain panel laid over the main window while it paints, so that the user sees
/// "Preparing View..." instead of a half-drawn form. Made see-through it only keeps the
/// mouse off the form for a moment.
class frmCover final : public QWidget {
    Q_OBJECT
public:
    explicit frmCover(QWidget* parent = nullptr);

    /// Lays the cover over `area` in `colour` and shows it.
    void ShowOver(const QRect& area, const QColor& colour);
    /// Turns the cover invisible: the label goes and nothing is painted.
    void MakeTransparent();

private:
    QLabel* m_preparing = nullptr;
};

} // namespace coinlight
