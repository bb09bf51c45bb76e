// SPDX-License-Identifier: MIT

#include "window/themes/Welcome.h"

#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "wallpapers/DesktopWallpaper.h"
#include "window/cards/CardLayout.h"
#include "window/cards/CardShadow.h"
#include "window/cards/PictureShelf.h"
#include "window/frame/MainWindowModel.h"
#include "window/frame/PreviousPicture.h"
#include "window/frame/Undo.h"
#include "window/look/Button.h"
#include "window/look/ControlPainting.h"
#include "window/look/ReadingOrder.h"
#include "window/look/TextLabel.h"

#include <QBoxLayout>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double welcomeCorner = 12;
constexpr int welcomePadding = 24;
constexpr int welcomeGap = 12;
constexpr int lineGap = 10;
constexpr int lineSymbol = 16;
constexpr int symbolGap = 14;
constexpr int actionGap = 8;
constexpr QSize pictureSize{256, 160};
constexpr int usualWelcome = 836; // wide

/// One of the symbols before the lines.
class LineSymbol final : public QWidget {
public:
    explicit LineSymbol(QString name)
        : m_name(std::move(name))
    {
        setFixedSize(lineSymbol, lineSymbol);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintSymbol(painter, rect(), m_name, AppLook::shared().colours().accent);
    }

private:
    QString m_name;
};

QHBoxLayout* symbolLine(const QString& symbol, TextLabel* text)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(symbolGap);
    line->addWidget(new LineSymbol(symbol), 0, Qt::AlignTop);
    text->setWordWrap(true);
    line->addWidget(text, 1);
    return line;
}

} // namespace

WelcomePicture::WelcomePicture(const WindowContext& context)
    : m_with(context)
{
    setFixedSize(pictureSize);
    connect(&m_with.shelf, &PictureShelf::arrived, this, [this](const PictureKey& arrived) {
        if (arrived == m_key)
            update();
    });
    connect(&m_with.manager, &WidgetManager::controllersChanged, this, &WelcomePicture::look);
    connect(&m_with.manager, &WidgetManager::configChanged, this, &WelcomePicture::look);
    connect(&m_with.accents, &ThemeAccent::changed, this, &WelcomePicture::look);
    connect(&m_with.settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_with.settings.defaultSkin.key())
            look();
    });
    connect(&m_with.host, &WindowHost::screensChanged, this, &WelcomePicture::look);
    look();
}

/// Takes what is on the desktop now.
void WelcomePicture::look()
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    const std::optional<Skin> skin = screens.isEmpty() ? std::nullopt : m_with.manager.dominantSkin(screens.first());
    const auto key = PictureKey::desktop(m_with.snapshots.wish(skin.value_or(m_with.settings.defaultSkin())));
    if (std::exchange(m_key, key) != key)
        update();
}

void WelcomePicture::paintEvent(QPaintEvent*)
{
    const double ratio = devicePixelRatioF();
    const PictureOrder order{m_key, (QSizeF(size()) * ratio).toSize(), CardLayout::corner * ratio};
    m_with.shelf.setWanted(*this, {order});
    const QPixmap picture = m_with.shelf.picture(order.key, order.pixels, order.corner);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (picture.isNull()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(AppLook::shared().colours().placeholder);
        painter.drawRoundedRect(rect(), CardLayout::corner, CardLayout::corner);
    } else {
        painter.drawPixmap(QRectF(rect()), picture, QRectF(picture.rect()));
    }
}

Welcome::Welcome(const WindowContext& context, QWidget* parent)
    : QWidget(parent)
    , m_with(context)
    , m_picture(new WelcomePicture(context))
    , m_dismiss(Button::symbolOnly(u"xmark"_s, Wording::tr("Dismiss")))
    , m_words(new QWidget)
{
    setAccessibleName(Wording::tr("Welcome to Ambrelle"));
    makeLines();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(
        inReadingOrder({welcomePadding, welcomePadding, welcomeGap, welcomePadding}, layoutDirection()));
    row->setSpacing(welcomeGap);
    row->addWidget(m_words, 1);
    row->addWidget(m_picture, 0, Qt::AlignVCenter);
    row->addWidget(m_dismiss, 0, Qt::AlignTop);
    connect(m_dismiss, &Button::clicked, this, [this] { m_with.model.setShowWelcome(false); });
    connect(&m_with.wallpaper, &DesktopWallpaper::changed, this, &Welcome::showPrevious);
    connect(&m_with.model, &MainWindowModel::changed, this, &Welcome::tellHowToReturn);
    connect(&AppLook::shared(), &AppLook::changed, this, qOverload<>(&QWidget::update));
    m_picture->hide();
    tellHowToReturn();
    showPrevious();
}

void Welcome::makeLines()
{
    auto* column = new QVBoxLayout(m_words);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(lineGap);
    column->addWidget(new TextLabel(TextRole::title, Wording::tr("Welcome to Ambrelle")));
    m_howToReturn = new TextLabel(TextRole::body);
    column->addLayout(symbolLine(u"cursorarrow.motionlines"_s,
        new TextLabel(TextRole::body,
            Wording::tr("Your widgets are on the desktop. Point at one to move, resize or restyle it."))));
    column->addLayout(symbolLine(u"rectangle.on.rectangle.angled"_s,
        new TextLabel(TextRole::body, Wording::tr("Pick any theme below to change the whole desktop at once."))));
    column->addLayout(symbolLine(u"macwindow"_s, m_howToReturn));
    auto* actions = new QHBoxLayout;
    actions->setSpacing(actionGap);
    makeActions(*actions);
    column->addSpacing(welcomeGap - lineGap);
    column->addLayout(actions);
    column->addStretch(1);
}

void Welcome::makeActions(QHBoxLayout& row)
{
    auto* edit = new Button(Wording::tr("Edit & Move Widgets"), Button::Kind::primary);
    auto* city = new Button(Wording::tr("Set City…"));
    m_keepWallpaper = new Button(Wording::tr("Keep My Wallpaper"));
    m_isBack = new QWidget;
    auto* back = symbolLine(u"checkmark"_s, new TextLabel(TextRole::name, Wording::tr("Your picture is back")));
    back->setContentsMargins(inReadingOrder({welcomeGap, 0, 0, 0}, layoutDirection()));
    back->setAlignment(back->itemAt(0)->widget(), Qt::AlignVCenter);
    m_isBack->setLayout(back);
    edit->setSymbol(u"hand.draw"_s);
    city->setSymbol(u"location.fill"_s);
    m_keepWallpaper->setSymbol(u"arrow.counterclockwise"_s);
    row.addWidget(edit);
    row.addWidget(city);
    row.addWidget(m_keepWallpaper);
    row.addWidget(m_isBack);
    row.addStretch(1);
    connect(edit, &Button::clicked, this, [this] { m_with.manager.setEditing(true); });
    connect(city, &Button::clicked, this, [this] { m_with.model.askForCity(); });
    connect(m_keepWallpaper, &Button::clicked, this, &Welcome::giveBackPrevious);
}

void Welcome::giveBackPrevious()
{
    const QPointer<Welcome> self(this);
    bringBackPrevious(m_with, [self](const QString& error) {
        if (self && error.isEmpty()) {
            self->m_gaveBack = true;
            self->showPrevious();
        }
    });
}

void Welcome::showPrevious()
{
    const bool offered = m_with.wallpaper.hasPrevious();
    m_keepWallpaper->setVisible(offered);
    m_isBack->setVisible(!offered && m_gaveBack);
}

void Welcome::tellHowToReturn()
{
    m_howToReturn->setText(m_with.model.hasTray()
            ? Wording::tr("Close this window any time. Ambrelle stays in the tray, and so do your widgets.")
            : Wording::tr("Close this window any time. Start Ambrelle again to bring it back."));
}

void Welcome::setWide(bool wide)
{
    if (std::exchange(m_isWide, wide) == wide)
        return;
    m_picture->setVisible(wide);
    updateGeometry();
}

int Welcome::heightForWidth(int width) const
{
    const QMargins around = layout()->contentsMargins();
    const int beside = (m_isWide ? pictureSize.width() + welcomeGap : 0) + welcomeGap + m_dismiss->sizeHint().width();
    const int words = m_words->layout()->totalHeightForWidth(width - around.left() - around.right() - beside);
    return std::max(words, m_isWide ? pictureSize.height() : 0) + around.top() + around.bottom();
}

QSize Welcome::sizeHint() const
{
    return {usualWelcome, heightForWidth(usualWelcome)};
}

void Welcome::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const AppColours& colours = AppLook::shared().colours();
    painter.setBrush(colours.surface);
    painter.setPen(QPen(AppLook::shared().wishes().highContrast ? colours.edge : colours.hairline, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), welcomeCorner, welcomeCorner);
}

} // namespace ambrelle
