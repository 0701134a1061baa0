#pragma once

#include <optional>

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QRect>
#include <QWidget>

namespace coinlight {

/// `imgShots`: a picture drawn as large as its room allows, proportions kept, smoothly
/// scaled, and centred; or, with a fixed place, inside that rectangle.
class ScaledPicture final : public QWidget {
    Q_OBJECT
public:
    explicit ScaledPicture(QWidget* parent = nullptr);

    void SetPicture(QImage picture);
    void Clear();
    bool HasPicture() const { return !m_picture.isNull(); }
    const QImage& Picture() const { return m_picture; }
    /// Where the picture is drawn in the widget, for the layout's tests.
    QRect PictureRect() const;
    /// A rectangle of the widget that holds the picture instead of all of it.
    void SetFixedPlace(std::optional<QRect> place);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect Room() const;

    QImage m_picture;
    QPixmap m_scaled; // the picture at the size last drawn, made again only when it changes
    std::optional<QRect> m_fixedPlace;
};

/// The snapshot pane under the lists: the picture of the selection, or the text that
/// stands in for a missing one (`lblShots`).
class SnapshotPane final : public QWidget {
    Q_OBJECT
public:
    explicit SnapshotPane(QWidget* parent = nullptr);

    ScaledPicture* Picture() const { return m_picture; }
    QLabel* MissingText() const { return m_missing; }

    void ShowPicture(QImage picture);
    void ShowMissing();
    /// Neither picture nor text: an empty list has nothing to picture.
    void ShowNothing();

private:
    ScaledPicture* m_picture;
    QLabel* m_missing;
};

} // namespace coinlight
