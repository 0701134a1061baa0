#include "LookControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "PathRules.h"
#include "PreferenceChoices.h"
#include "ui/ColourConvert.h"
#include "ui/Prompter.h"
#include "ui/theme/ColourList.h"
#include "ui/theme/Readability.h"
#include "ui/theme/StarField.h"
#include "ui/theme/ThemeTable.h"

namespace coinlight {

namespace {

constexpr const char* kFontSizes[] = {"8", "9", "10", "11", "12"};
constexpr const char* kGuiFonts[] = {"Arial",    "Cambria", "Georgia", "Lucida Sans Unicode",
                                     "Segoe UI", "Tahoma",  "Verdana"};
constexpr Colour kWhite{0xFFFFFFu};
constexpr Colour kBlack{0x000000u};

template <class Widget> Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

LookControls::LookControls(Prompter& prompter, QWidget* parent)
    : QGroupBox(QStringLiteral("Look"), parent), m_prompter(prompter) {
    setObjectName(QStringLiteral("fraLook"));
    BuildForm();
}

void LookControls::BuildForm() {
    auto* themeLabel = Named(new QLabel(QStringLiteral("T&heme:"), this), "lblTheme");
    m_cboTheme = Named(new QComboBox(this), "cboTheme");
    for (const std::string_view theme : kThemeNames) {
        m_cboTheme->addItem(ToQString(theme));
    }
    themeLabel->setBuddy(m_cboTheme);

    m_lblListBackColor =
        Named(new QLabel(QStringLiteral("List &Back Color:"), this), "lblListBackColor");
    m_odclListBackColor = Named(new QComboBox(this), "odclListBackColor");
    FillColourCombo(*m_odclListBackColor, ListBackColours());
    m_lblListBackColor->setBuddy(m_odclListBackColor);
    m_lblListFontColor =
        Named(new QLabel(QStringLiteral("List Font Color:"), this), "lblListFontColor");
    m_cmdFontColor = Named(new QPushButton(QStringLiteral("&Font Color..."), this), "cmdFontColor");
    m_cmdFontColor->setAutoDefault(false);

    auto* sizeLabel = new QLabel(QStringLiteral("List Font &Size:"), this);
    m_cboListFontSize = Named(new QComboBox(this), "cboListFontSize");
    for (const char* size : kFontSizes) {
        m_cboListFontSize->addItem(QString::fromLatin1(size));
    }
    sizeLabel->setBuddy(m_cboListFontSize);
    auto* fontLabel = new QLabel(QStringLiteral("&GUI Font:"), this);
    m_cboGUIFont = Named(new QComboBox(this), "cboGUIFont");
    for (const char* font : kGuiFonts) {
        m_cboGUIFont->addItem(QString::fromLatin1(font));
    }
    fontLabel->setBuddy(m_cboGUIFont);
    m_chkListGridlines =
        Named(new QCheckBox(QStringLiteral("Grid Lines In Lists"), this), "chkListGridlines");
    m_chkStarfield =
        Named(new QCheckBox(QStringLiteral("Show Starfield Image In Lists"), this), "chkStarfield");

    // The sample: a patch of list background, the star field over it when the theme has
    // one, and a line of list text on top.
    m_lblListBack = Named(new QLabel(this), "lblListBack");
    m_lblListBack->setAutoFillBackground(true);
    m_lblListBack->setFrameShape(QFrame::StyledPanel);
    m_lblListBack->setMinimumSize(200, 44);
    m_imgStarfield = Named(new QLabel(m_lblListBack), "imgStarfield");
    m_imgStarfield->setAutoFillBackground(true);
    QPalette sky = m_imgStarfield->palette();
    sky.setBrush(QPalette::Window, StarFieldBrush(devicePixelRatioF()));
    m_imgStarfield->setPalette(sky);
    m_lblListBack->installEventFilter(this);
    m_lblListText =
        Named(new QLabel(QStringLiteral("Sample Machine (1981)"), m_lblListBack), "lblListText");
    m_lblListText->setAlignment(Qt::AlignCenter);
    auto* sample = new QVBoxLayout(m_lblListBack);
    sample->setContentsMargins(2, 2, 2, 2);
    sample->addWidget(m_lblListText);

    auto* grid = new QGridLayout(this);
    grid->addWidget(themeLabel, 0, 0);
    grid->addWidget(m_cboTheme, 0, 1);
    grid->addWidget(m_lblListBackColor, 1, 0);
    grid->addWidget(m_odclListBackColor, 1, 1);
    grid->addWidget(m_lblListFontColor, 2, 0);
    grid->addWidget(m_cmdFontColor, 2, 1);
    grid->addWidget(sizeLabel, 3, 0);
    grid->addWidget(m_cboListFontSize, 3, 1);
    grid->addWidget(fontLabel, 4, 0);
    grid->addWidget(m_cboGUIFont, 4, 1);
    grid->addWidget(m_chkListGridlines, 5, 0, 1, 2);
    grid->addWidget(m_chkStarfield, 6, 0, 1, 2);
    grid->addWidget(m_lblListBack, 7, 0, 1, 2);
    grid->setRowStretch(7, 1);
    grid->setColumnStretch(1, 1);
    // A hidden colour list keeps its row, so the controls below it stay in place.
    QSizePolicy keep = m_odclListBackColor->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    m_odclListBackColor->setSizePolicy(keep);

    connect(m_cboTheme, &QComboBox::currentIndexChanged, this, &LookControls::cboTheme_Change);
    connect(m_odclListBackColor, &QComboBox::currentIndexChanged, this,
            &LookControls::odclListBackColor_Change);
    connect(m_chkStarfield, &QCheckBox::clicked, this, &LookControls::chkStarfield_Click);
    connect(m_cmdFontColor, &QPushButton::clicked, this, &LookControls::cmdFontColor_Click);
    connect(m_cboListFontSize, &QComboBox::currentIndexChanged, this,
            &LookControls::ShowSampleFont);
    connect(m_cboGUIFont, &QComboBox::currentIndexChanged, this, &LookControls::ShowSampleFont);
}

void LookControls::Show(const OtherPreferences& look) {
    m_showing = true;
    m_stored = look;
    SelectTheme(look.theme);
    SelectCombo(*m_cboListFontSize, look.listFontSize);
    SelectCombo(*m_cboGUIFont, look.guiFont);
    m_chkListGridlines->setChecked(look.listGridlines);
    m_odclListBackColor->setCurrentIndex(IndexOfColour(ListBackColours(), look.listBackColor));
    const ThemePreview preview = PreviewOfTheme(look.theme, look.listBackColor, look.listFontColor);
    EnableColourControls(preview);
    m_chkStarfield->setChecked(preview.starField);
    SetSample(look.listBackColor, look.listFontColor);
    ShowSampleFont();
    m_showing = false;
}

void LookControls::Read(OtherPreferences& look) const {
    look.theme = m_cboTheme->currentText().toStdString();
    look.listBackColor = m_listBack;
    look.listFontColor = m_listText;
    look.listFontSize = m_cboListFontSize->currentText().toStdString();
    look.listGridlines = m_chkListGridlines->isChecked();
    look.guiFont = m_cboGUIFont->currentText().toStdString();
}

void LookControls::Reset() {
    // The heritage sample shows the list colours these buttons set, not the ones the dialog
    // opened with.
    m_stored.listBackColor = ListBackColours()[kDefaultListBackIndex].colour;
    m_stored.listFontColor = kWhite;
    cboTheme_Change();
}

void LookControls::MyDefaults() {
    m_stored.listBackColor = ListBackColours()[kDefaultListBackIndex].colour;
    cboTheme_Change();
}

void LookControls::SelectTheme(const std::string& theme) {
    const int index = m_cboTheme->findText(QString::fromStdString(theme));
    if (index < 0) {
        // A theme no longer offered: the first one stands, so that nothing unknown is saved.
        m_prompter.Message(QString::fromLatin1(kCoinlightTitle),
                           QString::fromLatin1(kDepreciatedComboValue));
        m_cboTheme->setCurrentIndex(0);
        return;
    }
    m_cboTheme->setCurrentIndex(index);
}

void LookControls::SelectCombo(QComboBox& combo, const std::string& value) {
    const int index = combo.findText(QString::fromStdString(value));
    if (index < 0) {
        m_prompter.Message(QString::fromLatin1(kCoinlightTitle),
                           QString::fromLatin1(kDepreciatedComboValue));
        return;
    }
    combo.setCurrentIndex(index);
}

void LookControls::SetListBackIndex(int index) {
    if (m_odclListBackColor->currentIndex() == index) {
        odclListBackColor_Change(index);
    } else {
        m_odclListBackColor->setCurrentIndex(index);
    }
}

void LookControls::cboTheme_Change() {
    if (m_showing) {
        return;
    }
    SetListBackIndex(kDefaultListBackIndex);
    const std::string theme = m_cboTheme->currentText().toStdString();
    const ThemePreview preview =
        PreviewOfTheme(theme, m_stored.listBackColor, m_stored.listFontColor);
    EnableColourControls(preview);
    m_chkStarfield->setChecked(preview.starField);
    SetSample(preview.back, preview.text);
    if (IsHeritageTheme(theme)) {
        KeepSampleReadable(preview.starField);
    }
}

void LookControls::EnableColourControls(const ThemePreview& preview) {
    m_imgStarfield->setVisible(preview.starField);
    m_odclListBackColor->setVisible(preview.listBackChoice);
    m_odclListBackColor->setEnabled(preview.listBackChoice);
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_lblListBackColor, m_lblListFontColor, m_cmdFontColor}) {
        control->setEnabled(preview.colourControls);
    }
}

void LookControls::KeepSampleReadable(bool starField) {
    const QPalette palette = m_lblListBack->palette();
    const Colour fallbackBack = ListBackColours()[kDefaultListBackIndex].colour;
    // The other list keeps black rows under both themes: its background must be light.
    Colour back = m_listBack;
    if (!Readable(Qt::black, ToQColor(back, palette))) {
        back = fallbackBack;
    }
    const QColor behindText = starField ? StarFieldSky() : ToQColor(back, palette);
    Colour text = m_listText;
    if (!Readable(ToQColor(text, palette), behindText)) {
        text = starField ? kWhite : kBlack;
    }
    SetSample(back, text);
}

void LookControls::chkStarfield_Click() {
    const bool checked = m_chkStarfield->isChecked();
    m_imgStarfield->setVisible(checked);
    m_odclListBackColor->setEnabled(!checked);
    m_lblListBackColor->setEnabled(!checked);
    if (checked) {
        SetSample(m_listBack, kWhite);
    } else {
        const int index = std::max(0, m_odclListBackColor->currentIndex());
        SetSample(ColourAt(*m_odclListBackColor, index), kBlack);
    }
}

void LookControls::cmdFontColor_Click() {
    const auto chosen = m_prompter.Colour(QStringLiteral("List Font Color"),
                                          ToQColor(m_listText, m_lblListText->palette()));
    if (chosen) {
        SetSample(m_listBack, FromQColor(*chosen));
    }
}

void LookControls::odclListBackColor_Change(int index) {
    if (index < 0 || m_showing) {
        return;
    }
    SetSample(ColourAt(*m_odclListBackColor, index), m_listText);
}

void LookControls::SetSample(Colour back, Colour text) {
    m_listBack = back;
    m_listText = text;
    QPalette palette = m_lblListBack->palette();
    palette.setColor(QPalette::Window, ToQColor(back, palette));
    m_lblListBack->setPalette(palette);
    QPalette textPalette = m_lblListText->palette();
    textPalette.setColor(QPalette::WindowText, ToQColor(text, textPalette));
    m_lblListText->setPalette(textPalette);
}

bool LookControls::eventFilter(QObject* watched, QEvent* event) {
    // The star field covers the whole sample, under its text.
    if (watched == m_lblListBack && event->type() == QEvent::Resize) {
        m_imgStarfield->setGeometry(m_lblListBack->rect());
        m_imgStarfield->lower();
    }
    return QGroupBox::eventFilter(watched, event);
}

void LookControls::ShowSampleFont() {
    QFont font(m_cboGUIFont->currentText());
    font.setPointSize(m_cboListFontSize->currentText().toInt());
    m_lblListText->setFont(font);
}

} // namespace coinlight
