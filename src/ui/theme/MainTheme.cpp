#include "MainTheme.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "Readability.h"
#include "StarField.h"
#include "ThemeTable.h"
#include "core/Preferences.h"
#include "ui/ColourConvert.h"
#include "ui/MachineListView.h"
#include "ui/MainControls.h"
#include "ui/Prompter.h"
#include "ui/chrome/TitleStrip.h"

namespace coinlight {

namespace {

/// What a disabled control's text becomes: halfway to the background, so that it reads as
/// unavailable on light and dark themes alike.
QColor Faded(const QColor& text, const QColor& back) {
    return QColor((text.red() + back.red()) / 2, (text.green() + back.green()) / 2,
                  (text.blue() + back.blue()) / 2);
}

void SetRole(QPalette& palette, QPalette::ColorRole role, const QBrush& brush,
             const QColor& disabled) {
    palette.setBrush(QPalette::Active, role, brush);
    palette.setBrush(QPalette::Inactive, role, brush);
    palette.setBrush(QPalette::Disabled, role, disabled);
}

void SetColours(QWidget* widget,
                std::initializer_list<std::pair<QPalette::ColorRole, QBrush>> roles) {
    if (widget == nullptr) {
        return;
    }
    QPalette palette = widget->palette();
    for (const auto& [role, brush] : roles) {
        palette.setBrush(role, brush);
    }
    widget->setPalette(palette);
}

template <class Widget = QWidget> Widget* Find(QWidget& form, const char* name) {
    return form.findChild<Widget*>(QString::fromLatin1(name));
}

std::vector<QWidget*> Lists(const MainControls& c) {
    return {c.lvAll, c.lvAvailable, c.lvUnavailable, c.lvOther, c.lvSoftware};
}

// Step 1: controls raised under the two heritage themes, flat under the others.
void SetAppearance(QWidget& form, const MainControls& c, bool raised) {
    for (const char* name : {"optSoftware_0", "optSoftware_1", "chkAutoSave", "chkAutoRun",
                             "chkRecord", "chkPlayback"}) {
        if (QWidget* control = Find(form, name)) {
            control->setProperty("appearance", raised ? 1 : 0);
        }
    }
    c.lblGradient->setEnabled(raised);
    for (QLabel* panel : c.lblPanel) {
        panel->setFrameShape(raised ? QFrame::StyledPanel : QFrame::Box);
        panel->setFrameShadow(raised ? QFrame::Sunken : QFrame::Plain);
    }
}

// Step 4's exceptions: text boxes, combo boxes and the icon keep the system's look.
void KeepSystemLook(QWidget& form, const QPalette& system) {
    std::vector<QWidget*> kept;
    for (auto* widget : form.findChildren<QLineEdit*>()) {
        kept.push_back(widget);
    }
    for (auto* widget : form.findChildren<QAbstractSpinBox*>()) {
        kept.push_back(widget);
    }
    for (auto* widget : form.findChildren<QComboBox*>()) {
        kept.push_back(widget);
    }
    for (auto* widget : form.findChildren<QPlainTextEdit*>()) {
        kept.push_back(widget);
    }
    if (QWidget* icon = Find(form, "picIcon")) {
        kept.push_back(icon);
    }
    for (QWidget* widget : kept) {
        if (qobject_cast<QLineEdit*>(widget) != nullptr &&
            qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr) {
            continue; // an editable combo's own field follows its combo
        }
        QPalette palette = widget->palette();
        for (const auto role :
             {QPalette::Window, QPalette::WindowText, QPalette::Button, QPalette::ButtonText}) {
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                palette.setBrush(group, role, system.brush(group, role));
            }
        }
        widget->setPalette(palette);
    }
}

void SetListColours(QWidget* list, const QBrush& back, const std::optional<QColor>& text) {
    if (list == nullptr) {
        return;
    }
    QPalette palette = list->palette();
    palette.setBrush(QPalette::Base, back);
    palette.setBrush(QPalette::AlternateBase, back);
    if (text) {
        palette.setColor(QPalette::Text, *text);
    }
    list->setPalette(palette);
}

} // namespace

bool ApplyTheme(QWidget& form, const MainControls& c, const OtherPreferences& look,
                Prompter& prompter) {
    const QPalette system = QApplication::palette();
    const auto colour = [&system](Colour value) {
        return ToQColor(value, system);
    };
    const bool heritage = IsHeritageTheme(look.theme);
    SetAppearance(form, c, heritage);

    const Theme* theme = FindTheme(look.theme);
    if (theme == nullptr) {
        prompter.Message(QString::fromLatin1(kUnknownThemeTitle),
                         QString::fromLatin1(kUnknownThemeMessage), PromptIcon::Critical);
        return false;
    }

    // Step 3: the title image and the form's colour; the gradient paints with the form.
    c.picTitle->SetTitleImage(theme->titleImage);
    const QColor back = colour(theme->back);
    const QColor text = colour(theme->text);
    const QColor faded = Faded(text, back);
    QPalette palette = form.palette();
    SetRole(palette, QPalette::Window, back, back);
    SetRole(palette, QPalette::Button, back, back);
    SetRole(palette, QPalette::WindowText, text, faded);
    SetRole(palette, QPalette::ButtonText, text, faded);
    form.setPalette(palette);
    form.update();

    // Step 4: everything else has taken the form's colours through the palette.
    KeepSystemLook(form, system);
    const std::optional<QColor> panel =
        theme->panel ? std::optional(colour(*theme->panel)) : std::nullopt;
    if (!heritage) {
        for (QWidget* list : Lists(c)) {
            const std::optional<QColor> listText =
                list == c.lvOther ? std::nullopt : std::optional(text);
            SetListColours(list, panel.value_or(back), listText);
        }
    }
    auto* rtfListSlots = Find(form, "rtfListSlots");

    // Step 5: the details strip of the Windows 11 themes, and the version.
    if (panel) {
        for (QLabel* label : c.lblPanel) {
            label->setFrameShape(QFrame::StyledPanel);
            label->setFrameShadow(QFrame::Sunken);
        }
    }
    for (QLabel* label : c.lblPanel) {
        label->setAutoFillBackground(panel.has_value());
        SetColours(label, {{QPalette::Window, panel.value_or(back)}});
    }
    if (QWidget* cover = Find(form, "picCover"); cover != nullptr && panel) {
        SetColours(cover, {{QPalette::Window, *panel}});
    }
    SetColours(c.lblVersion, {{QPalette::WindowText, colour(theme->version)}});

    // Step 6: the heritage themes take the user's list colours, over the star field.
    const QColor listBack = colour(look.listBackColor);
    const QColor listText = colour(look.listFontColor);
    if (heritage) {
        const QBrush window = system.brush(QPalette::Base);
        SetColours(c.rtfVerify, {{QPalette::Base, window}});
        SetColours(rtfListSlots, {{QPalette::Base, window}});
        const bool stars = ShowsStarField(look.theme);
        for (QWidget* list : Lists(c)) {
            const bool sky = stars && list != c.lvOther;
            SetListColours(list, sky ? StarFieldBrush(list->devicePixelRatioF()) : QBrush(listBack),
                           listText);
        }
    } else {
        SetColours(c.rtfVerify, {{QPalette::Base, back}});
        SetColours(rtfListSlots, {{QPalette::Base, back}});
    }

    // Step 7: a chosen list colour wins over the theme's text, but never in the other list.
    if (UserListColourApplies(look.listFontColor)) {
        for (QWidget* list :
             {static_cast<QWidget*>(c.lvAll), static_cast<QWidget*>(c.lvAvailable),
              static_cast<QWidget*>(c.lvUnavailable), static_cast<QWidget*>(c.lvSoftware)}) {
            SetColours(list, {{QPalette::Text, listText}});
        }
    }

    // Step 8: links.
    for (LinkLabel* link : c.lblMLinks) {
        SetColours(link, {{QPalette::Link, colour(theme->menuLinks)}});
    }
    const QColor otherLinks = colour(theme->otherLinks);
    for (LinkLabel* link : c.lblBLinks) {
        SetColours(link, {{QPalette::Link, otherLinks}});
    }
    SetColours(Find(form, "lblSelectControllerMapBLink"), {{QPalette::Link, otherLinks}});
    for (const char* name : {"lblGradient", "lblClrMAME", "lblToggle"}) {
        SetColours(Find(form, name), {{QPalette::Link, otherLinks}});
    }

    // Step 9: the other list's rows as one colour of its model; the missing ones stay red, in
    // the red that reads on the list's background.
    const QColor otherBack = c.lvOther->palette().color(QPalette::Base);
    c.lvOther->Model().SetItemColours(colour(theme->otherItems), ReadableRed(otherBack));
    SetColours(c.lvOther, {{QPalette::Text, colour(theme->otherList)}});

    // Step 10: the text of the report page and of the slot list.
    const QColor richText = colour(theme->richText);
    SetColours(c.rtfVerify, {{QPalette::Text, richText}});
    SetColours(rtfListSlots, {{QPalette::Text, richText}});

    // Step 11.
    SetColours(Find(form, "lblArtwork"), {{QPalette::WindowText, QColor(Qt::white)}});
    if (QWidget* icon = Find(form, "picIcon")) {
        icon->setAutoFillBackground(true);
        SetColours(icon, {{QPalette::Window, QColor(Qt::black)}});
    }
    SetColours(c.lblShots, {{QPalette::WindowText, colour(Colour{0x80000002u})}});
    return true;
}

void ApplyFonts(QWidget& form, const MainControls& c, const OtherPreferences& look) {
    const QString family = QString::fromStdString(look.guiFont);
    QFont font = form.font();
    font.setFamily(family);
    font.setPointSize(10);
    // The controls inherit it; those that set only a weight (the menu links) keep that.
    form.setFont(font);

    const auto face = [&family](const char* name, int size) {
        QFont own(name != nullptr ? QString::fromLatin1(name) : family);
        own.setPointSize(size);
        return own;
    };
    if (QWidget* artwork = Find(form, "lblArtwork")) {
        artwork->setFont(face("MS Serif", 6));
    }
    c.lblShots->setFont(face("Comic Sans MS", 16));
    // The diamond the classic symbol font drew for "w".
    c.lblToggle->setFont(face(nullptr, 9));
    c.lblToggle->SetCaption(QStringLiteral("\u25C6"));

    bool ok = false;
    int listSize = QString::fromStdString(look.listFontSize).toInt(&ok);
    if (!ok || listSize <= 0 || listSize >= 100) {
        listSize = 10;
    }
    for (QWidget* list : Lists(c)) {
        list->setFont(face(nullptr, list == c.lvOther ? 10 : listSize));
    }

    c.rtfVerify->document()->setDefaultFont(face(nullptr, 10));
    if (auto* slotList = Find<QTextEdit>(form, "rtfListSlots")) {
        QFont fixed = face("Lucida Console", 10);
        fixed.setStyleHint(QFont::TypeWriter);
        slotList->document()->setDefaultFont(fixed);
    }
}

} // namespace coinlight
