// SPDX-License-Identifier: MIT

#include "window/wallpapers/ScreenStrip.h"

#include "foundation/Wording.h"
#include "window/look/AppLook.h"
#include "window/look/Measures.h"
#include "window/look/SymbolIcon.h"
#include "window/look/TextLabel.h"
#include "window/wallpapers/ShuffleBox.h"

#include <QEvent>
#include <QGridLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double stripCorner = 12;
constexpr int stripSide = 18; // left and right
constexpr int stripVertical = 16;
constexpr int stripGap = 34; // between screens
constexpr int stripLineGap = 14; // between lines of them
constexpr int stripControlsGap = 24;
constexpr int tallestScreen = 80;
constexpr int lowestScreen = 70;
constexpr int stripBoxWidth = 168; // at least

} // namespace

ScreenStrip::ScreenStrip(PictureShelf& shelf, AppSettings& settings, QWidget* parent)
    : QWidget(parent)
    , m_shelf(shelf)
    , m_controls(new QWidget(this))
    , m_targetLabel(new TextLabel(TextRole::body, Wording::tr("Show on")))
    , m_target(new QComboBox)
    , m_shuffle(new ShuffleBox(settings))
    , m_caption(new TextLabel(TextRole::caption, Wording::tr("This desktop shows one picture on all screens")))
{
    auto* grid = new QGridLayout(m_controls);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    auto* shuffleLabel = new TextLabel(TextRole::body, Wording::tr("Shuffle"));
    for (TextLabel* label : {m_targetLabel, shuffleLabel}) {
        label->setTone(TextLabel::Tone::soft);
        label->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    }
    m_caption->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_targetLabel->setBuddy(m_target); // a drop-down's own name is its value
    shuffleLabel->setBuddy(m_shuffle);
    m_target->setFocusPolicy(Qt::StrongFocus); // the wheel scrolls the page
    const auto fit = [this] {
        for (QWidget* box : {static_cast<QWidget*>(m_target), m_shuffle})
            box->setMinimumWidth(AppLook::shared().scaled(stripBoxWidth));
    };
    connect(&AppLook::shared(), &AppLook::changed, this, fit);
    fit();
    grid->addWidget(m_targetLabel, 0, 0);
    grid->addWidget(m_target, 0, 1);
    grid->addWidget(shuffleLabel, 1, 0);
    grid->addWidget(m_shuffle, 1, 1);
    grid->addWidget(m_caption, 2, 0, 1, 2);
    connect(m_target, &QComboBox::activated, this, [this](int index) { Q_EMIT targetChosen(index - 1); });
    setRow({});
}

void ScreenStrip::setRow(const ScreenRow& row)
{
    if (row == m_row && !m_row.screens.isEmpty())
        return;
    m_row = row;
    showScreens();
    const bool several = row.screens.size() > 1;
    for (QWidget* part : {static_cast<QWidget*>(m_targetLabel), static_cast<QWidget*>(m_target)})
        part->setVisible(several && row.isPerScreen);
    m_caption->setVisible(several && !row.isPerScreen);
    QStringList titles{Wording::tr("All screens")};
    for (const ScreenSight& screen : row.screens)
        titles.append(screen.name);
    if (titles != m_titles) {
        m_titles = titles;
        m_target->clear();
        for (const QString& title : titles)
            m_target->addItem(symbolIcon(m_target->count() == 0 ? u"display.2"_s : u"display"_s), title);
    }
    m_target->setCurrentIndex(row.target + 1);
    arrange();
    updateGeometry();
}

void ScreenStrip::showScreens()
{
    double tallest = 1;
    for (const ScreenSight& screen : m_row.screens)
        tallest = std::max(tallest, screen.points.height());
    while (m_previews.size() > m_row.screens.size())
        delete m_previews.takeLast();
    for (qsizetype i = 0; i < m_row.screens.size(); ++i) {
        if (i == m_previews.size()) {
            m_previews.append(new ScreenPreview(m_shelf, this));
            m_previews.last()->show();
        }
        const auto height = static_cast<int>(std::lround(tallestScreen * m_row.screens[i].points.height() / tallest));
        m_previews[i]->setSight(m_row.screens[i], std::clamp(height, lowestScreen, tallestScreen));
    }
}

QList<QWidget*> ScreenStrip::controls() const
{
    return {m_target, m_shuffle};
}

/// Screens in lines; the controls beside them, or below where there is no room for a screen beside them.
ScreenStrip::Places ScreenStrip::places(int width) const
{
    Places places;
    const QSize controls = m_controls->sizeHint().expandedTo(m_controls->minimumSizeHint());
    const int full = width - 2 * stripSide;
    int widest = 0;
    for (const ScreenPreview* preview : m_previews)
        widest = std::max(widest, preview->sizeHint().width());
    const bool beside = widest + stripControlsGap + controls.width() <= full;
    const int room = beside ? full - stripControlsGap - controls.width() : full;
    QPoint corner(stripSide, stripVertical);
    int line = 0;
    for (const ScreenPreview* preview : m_previews) {
        const QSize size(std::min(preview->sizeHint().width(), room), preview->sizeHint().height());
        if (corner.x() > stripSide && corner.x() + size.width() > stripSide + room) {
            corner = {stripSide, corner.y() + line + stripLineGap};
            line = 0;
        }
        places.screens.append({corner, size});
        corner.rx() += size.width() + stripGap;
        line = std::max(line, size.height());
    }
    const int foot = corner.y() + line;
    if (beside) {
        const int inner = std::max(foot - stripVertical, controls.height());
        places.height = inner + 2 * stripVertical;
        places.controls = {
            QPoint(width - stripSide - controls.width(), (places.height - controls.height()) / 2), controls};
        const int spare = (stripVertical + inner - foot) / 2;
        for (QRect& screen : places.screens)
            screen.translate(0, spare);
    } else {
        places.controls = {
            QPoint(stripSide, foot + stripLineGap), QSize(std::min(full, controls.width()), controls.height())};
        places.height = places.controls.bottom() + 1 + stripVertical;
    }
    return places;
}

int ScreenStrip::heightForWidth(int width) const
{
    return places(width).height;
}

QSize ScreenStrip::sizeHint() const
{
    return {width(), heightForWidth(width())};
}

void ScreenStrip::arrange()
{
    const Places now = places(width());
    for (qsizetype i = 0; i < m_previews.size(); ++i)
        m_previews[i]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), now.screens[i]));
    m_controls->setGeometry(QStyle::visualRect(layoutDirection(), rect(), now.controls));
}

void ScreenStrip::resizeEvent(QResizeEvent*)
{
    arrange();
}

bool ScreenStrip::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::LayoutDirectionChange)
        arrange();
    return QWidget::event(event);
}

void ScreenStrip::paintEvent(QPaintEvent*)
{
    const AppColours& colours = AppLook::shared().colours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = hairline(devicePixelRatioF());
    painter.setBrush(colours.surface);
    painter.setPen(QPen(colours.hairline, line));
    painter.drawRoundedRect(
        QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), stripCorner, stripCorner);
}

} // namespace ambrelle
