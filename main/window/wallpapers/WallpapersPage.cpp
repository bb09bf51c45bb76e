// SPDX-License-Identifier: MIT

#include "window/wallpapers/WallpapersPage.h"

#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "placement/ScreenNames.h"
#include "window/cards/CardView.h"
#include "window/cards/PictureShelf.h"
#include "window/cards/ShelfPictures.h"
#include "window/look/ActionMenu.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/look/FileChooser.h"
#include "window/look/Measures.h"
#include "window/look/Segments.h"
#include "window/wallpapers/ScreenStrip.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QImageReader>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int scopeGap = 10;

/// By their names: what is dragged may be on a slow disk.
bool looksLikePicture(const QString& file)
{
    return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).name().startsWith("image/"_L1);
}

} // namespace

WallpapersPage::WallpapersPage(const WindowContext& context)
    : m_with(context)
    , m_actions(context)
    , m_scope(new QWidget(this))
    , m_bringBack(new Button(Wording::tr("Bring Back My Picture")))
    , m_add(new Button(Wording::tr("Add Pictures…")))
    , m_strip(new ScreenStrip(context.shelf, context.settings))
    , m_view(new CardView)
    , m_nothing(new EmptyState)
{
    makeScope();
    makeGrid();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_scope);
    rows->addWidget(m_view, 1); // now, to come behind the row for the keyboard
    m_nothing->setParent(this);
    orderTabs();
    follow();
    checkTarget();
    refresh();
}

void WallpapersPage::makeScope()
{
    auto* row = new QHBoxLayout(m_scope);
    row->setSpacing(scopeGap);
    m_bringBack->setSymbol(u"arrow.counterclockwise"_s);
    m_add->setSymbol(u"plus"_s);
    for (Button* button : {m_bringBack, m_add})
        button->setAccessibleName(button->title());
    row->addStretch(1);
    row->addWidget(m_bringBack);
    row->addWidget(m_add);
    makeSegments();
    connect(m_bringBack, &Button::clicked, &m_actions, &WallpaperActions::bringBack);
    connect(m_add, &Button::clicked, this, &WallpapersPage::choosePictures);
}

void WallpapersPage::makeSegments()
{
    delete m_segments;
    m_scopes = {WallpapersScope::all, WallpapersScope::themes, WallpapersScope::mine};
    QList<Segments::Item> items{
        {Wording::tr("All"), {}, {}}, {Wording::tr("Themes"), {}, {}}, {Wording::tr("My Wallpapers"), {}, {}}};
    if (!m_photographs.isEmpty()) {
        m_scopes.append(WallpapersScope::photographs);
        items.append({Wording::tr("Photographs"), {}, {}});
    }
    m_segments = new Segments(items);
    m_segments->setAccessibleName(Wording::tr("Wallpapers"));
    auto* row = static_cast<QHBoxLayout*>(m_scope->layout());
    m_segments->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    row->insertWidget(0, m_segments);
    m_scope->setFocusProxy(m_segments);
    connect(
        m_segments, &Segments::chose, this, [this](int index) { m_with.model.setWallpapersScope(m_scopes[index]); });
}

/// Before the grid and what stands in its place comes what lies above them.
void WallpapersPage::orderTabs()
{
    QList<QWidget*> order;
    for (Segment* segment : m_segments->findChildren<Segment*>())
        order.append(segment);
    order += {m_bringBack, m_add};
    order += m_strip->controls();
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void WallpapersPage::makeGrid()
{
    m_view->setAccessibleName(Wording::tr("Wallpapers"));
    m_view->setShape({.captions = false});
    m_view->setModel(&m_model);
    m_view->setPictures(new ShelfPictures(m_with.shelf, *m_view));
    m_view->setHeader(m_strip);
    connect(m_view, &CardView::activated, this, &WallpapersPage::use);
    connect(m_view, &CardView::primaryPressed, this, &WallpapersPage::use);
    connect(m_view, &CardView::removeRequested, this, &WallpapersPage::takeOff);
    connect(m_view, &CardView::menuRequested, this, &WallpapersPage::openMenu);
    connect(m_strip, &ScreenStrip::targetChosen, this, [this](int screen) {
        const QList<ScreenInfo> screens = m_with.host.screens();
        m_with.model.setWallpaperTarget(screen < 0 || screen >= screens.size() ? QString() : screens[screen].id);
    });
    connect(m_nothing, &EmptyState::cleared, this, [this] { m_with.model.setSearch(MainTab::wallpapers, {}); });
    connect(m_nothing, &EmptyState::widened, this, [this] { m_with.model.setWallpapersScope(WallpapersScope::all); });
}

void WallpapersPage::follow()
{
    connect(&m_with.model, &MainWindowModel::changed, this, &WallpapersPage::refresh);
    connect(&m_with.wallpaper, &DesktopWallpaper::changed, this, &WallpapersPage::look);
    connect(&m_files, &PictureFiles::changed, this, &WallpapersPage::refresh);
    connect(&AppLook::shared(), &AppLook::changed, this, &WallpapersPage::arrange);
    connect(&m_actions, &WallpaperActions::workingChanged, this, &WallpapersPage::refresh);
    connect(&m_actions, &WallpaperActions::settled, this, &WallpapersPage::refresh);
    connect(&m_actions, &WallpaperActions::added, this, &WallpapersPage::showAdded);
    connect(&m_with.settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_with.settings.customWallpapers.key())
            look();
    });
    connect(&m_with.host, &WindowHost::screensChanged, this, [this] {
        checkTarget();
        refresh();
    });
    connect(&m_with.shelf, &PictureShelf::arrived, this, [this](const PictureKey& key) {
        if (m_with.shelf.hasFailed(key) != m_model.shelf().withoutPreview.contains(key.name))
            refresh();
    });
    m_files.list(m_with.wallpaper.extrasFolder(), [this](const QStringList& paths) {
        m_photographs = paths;
        if (!paths.isEmpty()) {
            makeSegments();
            orderTabs();
        }
        look();
    });
}

/// Asks the disk again, about all files of which something is shown.
void WallpapersPage::look()
{
    QStringList files = m_with.settings.customWallpapers() + m_photographs;
    for (const ScreenInfo& screen : m_with.host.screens())
        files.append(m_with.wallpaper.currentURL(screen));
    files.append(m_with.wallpaper.currentURL());
    files.removeAll(QString());
    files.removeDuplicates();
    m_files.look(files);
    refresh();
}

void WallpapersPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    m_with.wallpaper.refresh([] {}); // somebody else may have set another picture
    look();
}

void WallpapersPage::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    arrange();
}

void WallpapersPage::takeFocus(bool first)
{
    QWidget* area = m_nothing->isVisibleTo(this) ? static_cast<QWidget*>(m_nothing) : m_view;
    area->setFocus(Qt::ShortcutFocusReason);
    if (first && m_model.firstWallpaper().isValid())
        m_view->choose(m_model.firstWallpaper());
}

QList<QWidget*> WallpapersPage::areas()
{
    return {m_scope, m_view, m_nothing};
}

QString WallpapersPage::invitation(const QStringList& files) const
{
    return std::ranges::any_of(files, looksLikePicture) ? Wording::tr("Drop to add to My Wallpapers") : QString();
}

void WallpapersPage::drop(const QStringList& files)
{
    m_actions.add(files);
}

/// What a click on a card does.
void WallpapersPage::use(const QModelIndex& index)
{
    if (m_model.isTile(index))
        choosePictures();
    else if (const std::optional<WallpaperChoice> wallpaper = m_model.wallpaper(index);
             wallpaper && cardAt(index).usable && cardAt(index).state != Card::State::working)
        m_actions.set(*wallpaper, m_with.model.wallpaperTarget());
}

void WallpapersPage::choosePictures()
{
    QStringList patterns;
    for (const QByteArray& suffix : QImageReader::supportedImageFormats())
        patterns.append(u"*."_s + QString::fromLatin1(suffix));
    QFileDialog* dialog = makeFileChooser(this, Wording::tr("Choose pictures to add to My Wallpapers"),
        QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters({Wording::tr("Pictures") + u" ("_s + patterns.join(u' ') + u')'});
    dialog->setLabelText(QFileDialog::Accept, Wording::tr("Add"));
    connect(dialog, &QFileDialog::filesSelected, &m_actions, &WallpaperActions::add);
    dialog->open();
}

/// The first picture that was added, wherever the page has been scrolled to.
void WallpapersPage::showAdded(const QString& path)
{
    m_with.model.setSearch(MainTab::wallpapers, {});
    if (scope() != WallpapersScope::all && scope() != WallpapersScope::mine)
        m_with.model.setWallpapersScope(WallpapersScope::mine);
    m_view->choose(m_model.indexOf(WallpaperShuffle::Custom{path}));
}

void WallpapersPage::takeOff(const QModelIndex& index)
{
    const std::optional<WallpaperChoice> wallpaper = m_model.wallpaper(index);
    const auto* own = wallpaper ? std::get_if<WallpaperShuffle::Custom>(&*wallpaper) : nullptr;
    if (own)
        m_actions.takeOff(WallpaperShuffle::Custom(*own).path);
}

void WallpapersPage::openMenu(const QModelIndex& index, const QPoint& place)
{
    const std::optional<WallpaperChoice> wallpaper = m_model.wallpaper(index);
    if (wallpaper)
        ActionMenu::openFor(*this, place, [this, wallpaper = *wallpaper] { return menuOf(wallpaper); });
}

QList<ActionItem> WallpapersPage::menuOf(const WallpaperChoice& wallpaper)
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    const bool several = screens.size() > 1;
    const Card card = cardAt(m_model.indexOf(wallpaper));
    const bool usable = card.usable;
    const bool canBeSet = usable && card.state != Card::State::working;
    const auto setOn = [&](const QString& title, const QString& screen) {
        return ActionItem{.title = title,
            .symbol = u"display"_s,
            .handler = [this, wallpaper, screen] { m_actions.set(wallpaper, screen); },
            .enabled = canBeSet};
    };
    QList<ActionItem> items{setOn(several ? Wording::tr("Set on All Screens") : Wording::tr("Set"), {})};
    if (several && m_with.wallpaper.isPerScreen() && std::holds_alternative<Skin>(wallpaper)) {
        const QStringList names = screenNames(screens);
        for (qsizetype i = 0; i < screens.size(); ++i)
            items.append(setOn(Wording::tr("Set on %1").arg(names[i]), screens[i].id));
    }
    if (const auto* own = std::get_if<WallpaperShuffle::Custom>(&wallpaper)) {
        items.append(ActionItem::separator());
        items.append({.title = Wording::tr("Show in Folder"),
            .symbol = u"folder"_s,
            .handler = [this, path = own->path] { m_actions.showInFolder(path); },
            .enabled = usable});
        items.append({.title = Wording::tr("Remove from My Wallpapers"),
            .symbol = u"trash"_s,
            .key = QKeySequence(Qt::Key_Delete),
            .handler = [this, path = own->path] { m_actions.takeOff(path); }});
    }
    return items;
}

} // namespace ambrelle
