// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarPages.h"

#include <QFileInfo>

#include <utility>

namespace ambrelle {

namespace {

std::int64_t weightOf(const CalendarPage& page)
{
    constexpr std::int64_t ofPage = 1000;
    return ofPage + page.content.bytes;
}

/// Where a name is an address, it is that of the owner.
QList<QByteArray> withOwner(QList<QByteArray> owners, const QString& name)
{
    if (name.contains(u'@'))
        owners.append(name.toLower().toUtf8());
    return owners;
}

CalendarPage newPage(const QString& path, const FileStamp& stamp, const QList<QByteArray>& owners)
{
    CalendarPage page{.stamp = stamp};
    if (stamp.size > CalendarPages::mostFileBytes) {
        page.fault = PageFault::tooLarge;
        return page;
    }
    const auto text = boundedContent(path, CalendarPages::mostFileBytes);
    if (!text) {
        page.fault = PageFault::closed;
        return page;
    }
    page.content = IcsParser::parsed({text->constData(), static_cast<std::size_t>(text->size())}, owners);
    if (page.content.isTooMuch)
        page.fault = PageFault::tooMuch;
    else if (!page.content.isCalendar)
        page.fault = PageFault::noCalendar;
    if (page.fault != PageFault::none)
        page.content = {};
    return page;
}

} // namespace

bool CalendarPages::read(const QList<CalendarFolder>& folders, const QList<QByteArray>& owners)
{
    Pages old = std::exchange(m_pages, {});
    m_bytes = 0;
    m_bySize.clear();
    std::map<QString, QList<QByteArray>> leftOut;
    bool differs = false;
    for (const CalendarFolder& folder : folders) {
        const auto ownersHere = withOwner(owners, QFileInfo(folder.path).fileName());
        for (const QString& name : folder.files) {
            const QString path = folder.path + u'/' + name;
            const auto ownersOfFile = withOwner(ownersHere, QFileInfo(name).completeBaseName());
            differs = readPage(path, old, ownersOfFile) || differs;
            if (const auto page = m_pages.find(path);
                page != m_pages.end() && page->second.fault == PageFault::tooMuchTogether)
                leftOut.emplace(path, ownersOfFile);
        }
    }
    const bool hasMore = bringBack(leftOut);
    return differs || hasMore || m_pages.size() != old.size();
}

/// Reads files again that were left out for the sake of others that are gone now, the smallest first. True if there are
/// any.
bool CalendarPages::bringBack(const std::map<QString, QList<QByteArray>>& owners)
{
    std::set<std::pair<std::int64_t, QString>> bySize;
    for (const auto& [path, ownersOfFile] : owners)
        bySize.insert({weightOf(m_pages.at(path)), path});
    bool hasMore = false;
    for (const auto& [weight, path] : bySize) {
        if (m_bytes + weight > mostBytes)
            break;
        const FileStamp stamp = m_pages.extract(path).mapped().stamp;
        keep(path, newPage(path, stamp, owners.at(path)));
        hasMore = true;
    }
    return hasMore;
}

/// True when the file is not the one that was read.
bool CalendarPages::readPage(const QString& path, Pages& old, const QList<QByteArray>& owners)
{
    const auto stamp = FileStamp::of(path);
    if (!stamp)
        return false;
    const auto known = old.find(path);
    const bool isKnown = known != old.end() && known->second.stamp == *stamp;
    keep(path, isKnown ? std::move(known->second) : newPage(path, *stamp, owners));
    return !isKnown;
}

void CalendarPages::keep(const QString& path, CalendarPage page)
{
    const auto place = m_pages.emplace(path, std::move(page)).first;
    if (place->second.fault == PageFault::tooMuchTogether)
        return;
    m_bytes += weightOf(place->second);
    m_bySize.insert({weightOf(place->second), path});
    while (m_bytes > mostBytes) {
        const auto largest = std::prev(m_bySize.end());
        CalendarPage& dropped = m_pages.at(largest->second);
        m_bytes -= largest->first;
        dropped.fault = PageFault::tooMuchTogether;
        dropped.content.series.clear();
        m_bySize.erase(largest);
    }
}

} // namespace ambrelle
