// SPDX-License-Identifier: MIT

#include "window/settings/AboutSection.h"

#include "foundation/Wording.h"
#include "platform/CalendarStore.h"
#include "window/frame/ProgramFacts.h"
#include "window/frame/Sheets.h"
#include "window/frame/Undo.h"
#include "window/look/Button.h"
#include "window/look/SymbolIcon.h"
#include "window/look/TextLabel.h"
#include "window/settings/FolderRow.h"

#include <QBoxLayout>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int markSide = 56; // points
constexpr int markGap = 14;

/// The values from before a reset, without those that somebody chose anew since.
QJsonObject exceptChanged(QJsonObject before, const QJsonObject& standard, const QJsonObject& now)
{
    for (const QString& key : before.keys()) {
        if (now[key] != standard[key])
            before.remove(key);
    }
    return before;
}

} // namespace

AboutSection::AboutSection(const WindowContext& context, QWidget* parent)
    : SettingsSection(context.settings, parent)
    , m_with(context)
{
    addMark();
    addTexts();
    addFolders();
    addReset();
}

void AboutSection::addMark()
{
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(markGap);
    auto* mark = new QLabel;
    mark->setPixmap(programIcon().pixmap(QSize(markSide, markSide), devicePixelRatioF()));
    row->addWidget(mark);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(new TextLabel(TextRole::title, u"Ambrelle"_s));
    texts->addWidget(new TextLabel(
        TextRole::caption, Wording::tr("Version %1 (build %2)").arg(m_with.facts.version).arg(m_with.facts.build)));
    texts->addStretch(1);
    row->addLayout(texts, 1);
    addNote(line);
}

void AboutSection::addTexts()
{
    const auto add = [this](const QString& name, const QString& caption, const std::function<QString()>& text) {
        addButton({.name = name, .caption = caption}, new Button(Wording::tr("Show…")),
            [this, name, text] { m_with.sheets.ask(sheets::told(name, text())); });
    };
    addGroup();
    add(Wording::tr("Licence"), u"MIT"_s, [&facts = m_with.facts] { return facts.licence(); });
    add(Wording::tr("Fonts"), Wording::tr("All under free licences"), [&facts = m_with.facts] {
        return Wording::tr("They come from these packages, each with its licence in /usr/share/doc:") + u"\n\n"_s
            + facts.fonts().join(u'\n');
    });
}

void AboutSection::addFolders()
{
    addGroup(Wording::tr("Files"));
    for (const auto& [name, folder] : {std::pair(Wording::tr("Wallpapers"), m_with.facts.wallpapers),
             std::pair(Wording::tr("Settings"), m_with.facts.settings),
             std::pair(Wording::tr("Picture cache"), m_with.facts.previews)})
        addButton({.name = name, .caption = shownFolder(folder), .keywords = {Wording::tr("folder")}},
            new Button(Wording::tr("Open Folder")),
            [this, folder = folder] { openFolder(m_with.programs, m_with.undo, folder); });
}

void AboutSection::addReset()
{
    addGroup();
    addButton({.name = Wording::tr("All settings"),
                  .caption = Wording::tr("As if you had never chosen anything"),
                  .keywords = {Wording::tr("defaults")}},
        new Button(Wording::tr("Reset Settings…")), [this] { reset(); });
}

void AboutSection::reset()
{
    m_with.sheets.ask(
        sheets::reset(!m_with.calendars.addedSources().isEmpty()), [with = m_with](const SheetAnswer& answer) {
            if (answer.button != sheets::accept)
                return;
            const QJsonObject before = with.settings.snapshot();
            const QStringList folders = with.calendars.addedSources();
            with.settings.reset();
            with.calendars.setAddedSources({});
            with.undo.offer({Wording::tr("Settings reset"),
                [&settings = with.settings, &calendars = with.calendars, before, standard = with.settings.snapshot(),
                    folders] {
                    settings.restore(exceptChanged(before, standard, settings.snapshot()));
                    calendars.restoreSources(folders);
                }});
        });
}

} // namespace ambrelle
