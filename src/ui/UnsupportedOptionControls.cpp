#include "UnsupportedOptionControls.h"

#include <QLabel>
#include <QWidget>

namespace coinlight {

QString UnsupportedOptionTip() {
    return QStringLiteral("This MAME build does not support this option.");
}

QString ObjectNameOfControl(const std::string& control) {
    QString name = QString::fromStdString(control);
    const auto open = name.indexOf(u'(');
    if (open > 0 && name.endsWith(u')')) {
        name = name.left(open) + u'_' + name.mid(open + 1, name.size() - open - 2);
    }
    return name;
}

int MarkUnsupportedControls(QWidget& page, const std::vector<std::string>& controls) {
    const QList<QLabel*> labels = page.findChildren<QLabel*>();
    int marked = 0;
    for (const std::string& control : controls) {
        auto* widget = page.findChild<QWidget*>(ObjectNameOfControl(control));
        if (widget == nullptr) {
            continue;
        }
        widget->setEnabled(false);
        widget->setToolTip(UnsupportedOptionTip());
        for (QLabel* label : labels) {
            if (label->buddy() == widget) {
                label->setEnabled(false);
                label->setToolTip(UnsupportedOptionTip());
            }
        }
        ++marked;
    }
    return marked;
}

} // namespace coinlight
