#include "ui/frmSplash.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

QString LabelText(const QWidget& form, const char* name) {
    const auto* label = form.findChild<QLabel*>(QString::fromLatin1(name));
    return label != nullptr ? label->text() : QStringLiteral("<missing>");
}

TEST(frmSplash, CarriesItsLabelsAndTheVersion) {
    test::TempFolder folder;
    frmSplash splash(folder.Path());
    EXPECT_EQ(LabelText(splash, "lblVCaption"), "Version:");
    EXPECT_EQ(LabelText(splash, "lblVersion"), "26.02.0");
    EXPECT_EQ(LabelText(splash, "lblArcade"), "Arcade Machines:");
    EXPECT_EQ(LabelText(splash, "lblArcadeCount"), "");
    EXPECT_EQ(LabelText(splash, "lblOther"), "Please stand by...");
    EXPECT_EQ(LabelText(splash, "lblOtherCount"), "");
    EXPECT_EQ(LabelText(splash, "lblMessage"), "");
    EXPECT_EQ(LabelText(splash, "lblMessageOptions"), "");
    splash.SetMessage(QStringLiteral("Different lists.txt detected!"));
    splash.SetArcadeCount(QStringLiteral("1250"));
    EXPECT_EQ(LabelText(splash, "lblMessage"), "Different lists.txt detected!");
    EXPECT_EQ(LabelText(splash, "lblArcadeCount"), "1250");
}

TEST(frmSplash, APictureBesideTheProgramReplacesTheBuiltInOne) {
    test::TempFolder folder;
    QImage red(40, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(QString::fromStdString((folder / "splash.jpg").string()), "JPG"));
    frmSplash splash(folder.Path());
    const auto* picture = splash.findChild<QLabel*>(QStringLiteral("picSplash"));
    ASSERT_NE(picture, nullptr);
    const QImage shown = picture->pixmap().toImage();
    const QColor middle = shown.pixelColor(shown.width() / 2, shown.height() / 2);
    EXPECT_GT(middle.red(), 200);
    EXPECT_LT(middle.green(), 60);
}

} // namespace
} // namespace coinlight
