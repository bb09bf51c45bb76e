// SPDX-License-Identifier: MIT

#include "window/themes/ThemesScope.h"

#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/ThemeStore.h"
#include "window/cards/CardLayout.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/Measures.h"
#include "window/look/Segments.h"
#include "window/themes/ThemeActions.h"
#include "window/themes/ThemesModel.h"

#include <QBoxLayout>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int scopeGap = 10;
constexpr int sectionCount = 5;

QList<Segments::Item> sectionItems()
{
    return {{Wording::tr("All"), {}, {}}, {title(ThemeGroup::concept_), {}, {}}, {title(ThemeGroup::minimal), {}, {}},
        {title(ThemeGroup::modern), {}, {}}, {Wording::tr("My Themes"), {}, {}}};
}

} // namespace

ThemesScope::ThemesScope(const WindowContext& context, const ThemesModel& themes, QWidget* parent)
    : QWidget(parent)
    , m_with(context)
    , m_themes(themes)
    , m_sections(new Segments(sectionItems()))
    , m_import(new Button(Wording::tr("Import…")))
    , m_save(new Button(Wording::tr("Save Current Desktop")))
    , m_row(new QHBoxLayout(this))
{
    m_sections->setAccessibleName(Wording::tr("Themes"));
    m_import->setSymbol(u"square.and.arrow.down"_s);
    m_save->setSymbol(u"plus"_s);
    m_row->setSpacing(scopeGap);
    m_row->addWidget(m_sections);
    m_row->addStretch(1);
    m_row->addWidget(m_import);
    m_row->addWidget(m_save);
    setFocusProxy(m_sections);
    connect(m_sections, &Segments::chose, this,
        [this](int index) { m_with.model.setThemesSection(static_cast<ThemesSection>(index)); });
    connect(m_import, &Button::clicked, this, &ThemesScope::importWanted);
    connect(m_save, &Button::clicked, this, [this] { m_with.themeActions.saveDesktop(); });
    connect(&m_with.model, &MainWindowModel::changed, this, &ThemesScope::showModel);
    connect(&m_with.themes, &ThemeStore::changed, this, &ThemesScope::showModel);
    connect(&m_with.manager, &WidgetManager::controllersChanged, this, &ThemesScope::showModel);
    connect(&AppLook::shared(), &AppLook::changed, this, &ThemesScope::arrange);
    arrange();
}

void ThemesScope::showModel()
{
    const int chosen = static_cast<int>(m_with.model.themesSection());
    m_sections->setChosen(chosen);
    for (int index = 1; index < sectionCount; ++index) {
        const bool shown = width() >= measures::wideWindow || index == chosen;
        m_sections->setCount(
            index, shown ? std::optional(m_themes.countOf(static_cast<ThemesSection>(index))) : std::nullopt);
    }
    const bool canSave = m_with.themeActions.canSave();
    m_save->setEnabled(canSave);
    m_save->setToolTip(!canSave        ? Wording::tr("There are no widgets to save")
            : m_save->text().isEmpty() ? m_save->accessibleName()
                                       : QString());
}

void ThemesScope::arrange()
{
    setFixedHeight(AppLook::shared().scaled(measures::scopeHeight));
    const int margin = std::max(measures::margin(width()), (width() - CardLayout::mostWidth) / 2);
    m_row->setContentsMargins(margin, 0, margin, 0);
    // Words go before the sections would have to.
    const auto fold = [](Button& button, const QString& words, bool folds) {
        button.setText(folds ? QString() : words);
        button.setAccessibleName(words);
        button.setToolTip(folds ? words : QString());
    };
    fold(*m_import, Wording::tr("Import…"), width() < measures::wideWindow);
    fold(*m_save, Wording::tr("Save Current Desktop"), false);
    showModel();
    const int wanted = m_sections->minimumSizeHint().width() + m_import->sizeHint().width() + m_save->sizeHint().width()
        + 2 * scopeGap + 2 * margin;
    if (wanted > width())
        fold(*m_save, Wording::tr("Save Current Desktop"), true);
    showModel();
}

void ThemesScope::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace ambrelle
