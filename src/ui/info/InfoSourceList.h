#pragma once

#include <string>
#include <vector>

#include <QListWidget>

namespace coinlight {

/// `lstInfo`: the information sources beside the text of the panel. A click on an entry
/// asks for its search; the list is only on show while the panel is.
class InfoSourceList final : public QListWidget {
    Q_OBJECT
public:
    explicit InfoSourceList(QWidget* parent = nullptr);

    void SetSources(const std::vector<std::string>& names);
    /// Empty, disabled and out of sight, as the lists find it when they come back.
    void Retire();

signals:
    void SourceClicked(const QString& name);
};

} // namespace coinlight
