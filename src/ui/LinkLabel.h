#pragma once

#include <QLabel>

namespace coinlight {

/// A command drawn as a link, the alternative to a push button. Disabled it reads as plain
/// grey text: a rich-text link would keep its link colour and look clickable.
class LinkLabel final : public QLabel {
    Q_OBJECT
public:
    explicit LinkLabel(const QString& caption = {}, QWidget* parent = nullptr);

    void SetCaption(const QString& caption);
    const QString& Caption() const { return m_caption; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void Render();

    QString m_caption;
};

} // namespace coinlight
