// SPDX-License-Identifier: MIT

#include "window/settings/CalendarsSection.h"

#include "foundation/Wording.h"
#include "services/EventsService.h"
#include "window/frame/Undo.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/ControlPainting.h"
#include "window/look/FileChooser.h"
#include "window/settings/ButtonRow.h"
#include "window/settings/FolderRow.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QPainter>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int calendarRowHeight = 40; // points
constexpr int calendarDot = 12;
constexpr int folderSymbol = 18;
constexpr QColor colourlessCalendar(0x00, 0x7A, 0xFF);

/// The dot of a calendar, or a symbol, before the texts of a row.
class RowMark final : public QWidget {
public:
    enum class Tone { soft, danger };

    explicit RowMark(const QColor& dot)
        : m_dot(dot)
    {
        setFixedSize(calendarDot, calendarDot);
    }
    explicit RowMark(const QString& symbol, Tone tone = Tone::soft)
        : m_symbol(symbol)
        , m_tone(tone)
    {
        const auto dress = [this] {
            const int side = AppLook::shared().scaled(folderSymbol);
            setFixedSize(side, side);
            update();
        };
        connect(&AppLook::shared(), &AppLook::changed, this, dress);
        dress();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const AppColours& colours = AppLook::shared().colours();
        if (!m_symbol.isEmpty()) {
            paintSymbol(painter, rect(), m_symbol, m_tone == Tone::danger ? colours.danger : colours.soft);
            return;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_dot);
        painter.drawEllipse(rect());
    }

private:
    QColor m_dot;
    QString m_symbol;
    Tone m_tone = Tone::soft;
};

} // namespace

CalendarsSection::CalendarsSection(const Collaborators& collaborators, QWidget* parent)
    : SettingsSection(collaborators.settings, parent)
    , m_with(collaborators)
{
    connect(&m_with.events, &EventsService::changed, this, &CalendarsSection::showKnown);
    m_known = {m_with.events.calendars(), m_with.events.unread(), m_with.events.sources(), m_with.events.status()};
    addAll();
}

void CalendarsSection::open()
{
    if (std::exchange(m_asked, true))
        return;
    m_with.events.start();
    remake([this] { addAll(); });
}

void CalendarsSection::showKnown()
{
    const Known known{
        m_with.events.calendars(), m_with.events.unread(), m_with.events.sources(), m_with.events.status()};
    if (std::exchange(m_known, known) != known)
        remake([this] { addAll(); });
}

void CalendarsSection::addAll()
{
    addGroup(Wording::tr("Calendars shown in the Events widget"));
    if (!m_known.status.isEmpty())
        addTold({.name = m_known.status});
    else if (m_known.calendars.isEmpty())
        addTold({.name = m_asked ? Wording::tr("No calendars with events yet")
                                 : Wording::tr("Open this section to see your calendars")});
    else
        for (const CalendarInfo& calendar : m_known.calendars)
            addCalendar(calendar);
    if (!m_known.unread.isEmpty())
        addUnread();
    if (!m_known.sources.isEmpty())
        addSources();
}

void CalendarsSection::addCalendar(const CalendarInfo& calendar)
{
    auto* box = new QCheckBox;
    connect(box, &QCheckBox::toggled, this, [this, id = calendar.identifier](bool on) { setShown(id, on); });
    SettingsRow* row =
        addRow({.name = calendar.name}, box, settings().excludedCalendars.key(), [this, box, id = calendar.identifier] {
            const QSignalBlocker quiet(box);
            box->setChecked(!settings().excludedCalendars().contains(id));
        });
    row->setLead(new RowMark(calendar.color.isValid() ? calendar.color : colourlessCalendar));
    row->setLeastHeight(calendarRowHeight);
}

/// Calendars that are away stay excluded.
void CalendarsSection::setShown(const QString& calendar, bool shown)
{
    QStringList excluded = settings().excludedCalendars();
    excluded.removeAll(calendar);
    if (!shown)
        excluded.append(calendar);
    settings().excludedCalendars.set(excluded);
}

void CalendarsSection::addUnread()
{
    addGroup(Wording::tr("Calendars that cannot be read"));
    for (const UnreadCalendar& unread : m_known.unread) {
        SettingsRow* row = addTold({.name = unread.name(), .caption = unread.reason});
        row->setToolTip(shownFolder(unread.file));
        row->setLead(new RowMark(u"exclamationmark.triangle.fill"_s, RowMark::Tone::danger));
    }
}

void CalendarsSection::addSources()
{
    addGroup(Wording::tr("Where calendars come from"));
    for (const CalendarSource& source : m_known.sources)
        addSource(source);
    auto* add = new Button(Wording::tr("Add Folder…"));
    SettingsRow* row = addButton({.name = Wording::tr("Put .ics files there, or add the folder that has them")}, add,
        [this] { chooseFolder(); });
    row->setLead(new RowMark(u"folder.badge.plus"_s));
}

void CalendarsSection::addSource(const CalendarSource& source)
{
    QList<Button*> buttons{new Button(Wording::tr("Open Folder"))};
    connect(buttons.first(), &Button::clicked, this,
        [this, folder = source.folder] { openFolder(m_with.programs, m_with.undo, folder); });
    if (source.isAdded) {
        buttons.append(new Button(Wording::tr("Remove")));
        connect(buttons.last(), &Button::clicked, this, [this, folder = source.folder] {
            m_with.undo.offer({Wording::tr("“%1” is no longer looked into").arg(shownFolder(folder)),
                [&events = m_with.events, before = m_with.events.addedSources()] { events.restoreSources(before); }});
            m_with.events.removeSource(folder);
        });
    }
    SettingsRow* row = addRow({.name = shownFolder(source.folder)}, makeButtonRow(buttons));
    row->setLead(new RowMark(u"folder"_s));
}

void CalendarsSection::chooseFolder()
{
    QFileDialog* chooser = makeFileChooser(window(), Wording::tr("Choose the folder that has your calendars"));
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setOption(QFileDialog::ShowDirsOnly);
    connect(chooser, &QFileDialog::fileSelected, this, [this](const QString& folder) {
        if (!m_with.events.addSource(folder))
            m_with.undo.fail(Wording::tr("“%1” cannot be added.").arg(shownFolder(folder)));
    });
    chooser->open();
}

} // namespace ambrelle
