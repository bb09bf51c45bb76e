// SPDX-License-Identifier: MIT

#include "services/PhotoRotator.h"

#include "foundation/BackgroundThread.h"
#include "foundation/Clock.h"
#include "services/PictureDecoder.h"

#include <QDir>
#include <QImageReader>
#include <QSet>
#include <QtConcurrentRun>

#include <utility>

namespace ambrelle {

namespace {

QSet<QString> pictureExtensions()
{
    QSet<QString> extensions;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        extensions.insert(QString::fromLatin1(format).toLower());
    return extensions;
}

} // namespace

QStringList PhotoFolder::pictures(const QString& folder)
{
    static const QSet<QString> extensions = pictureExtensions();
    if (folder.isEmpty())
        return {}; // not the folder the program happens to run in
    QStringList paths;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
        if (extensions.contains(file.suffix().toLower()))
            paths.append(file.absoluteFilePath());
    }
    return paths;
}

PhotoRotator::PhotoRotator(Clock& clock, QThreadPool& workers, Choice choose, Sample sample)
    : m_clock(clock)
    , m_workers(workers)
    , m_choose(std::move(choose))
    , m_sample(std::move(sample))
{
}

void PhotoRotator::configure(const std::optional<QString>& folder, int intervalMinutes, QSize shown)
{
    const bool isResized = std::exchange(m_shownSize, shown) != shown;
    const bool isAnother = std::exchange(m_folder, folder) != folder;
    if (!folder && (isAnother || isResized))
        showSample();
    else if (isAnother)
        listFolder();
    else if (isResized && !m_last.isEmpty())
        decodeLast();
    m_timer.reset();
    if (intervalMinutes >= 1)
        m_timer = m_clock.every(std::chrono::minutes(intervalMinutes), [this] { next(); });
}

void PhotoRotator::next()
{
    if (m_files.isEmpty())
        return; // there is nothing to show, or the folder is still being listed
    QStringList others = m_files;
    if (m_files.size() > 1)
        others.removeOne(m_last);
    const QString chosen = others.at(m_choose(others.size()));
    if (std::exchange(m_last, chosen) != chosen || m_image.isNull())
        decodeLast();
}

void PhotoRotator::loadPreview(const QImage& image)
{
    ++m_request;
    m_isEmpty = false;
    show(image);
}

void PhotoRotator::listFolder()
{
    ++m_request;
    m_files.clear();
    m_last.clear();
    setLoading();
    const auto list = [folder = *m_folder] {
        yieldToOthers();
        return PhotoFolder::pictures(folder);
    };
    QtConcurrent::run(&m_workers, list).then(this, [this, request = m_request](const QStringList& files) {
        if (request != m_request)
            return;
        m_files = files;
        m_isEmpty = files.isEmpty();
        if (m_isEmpty)
            show({});
        else
            next();
    });
}

void PhotoRotator::decodeLast()
{
    setLoading();
    make([file = m_last, shown = m_shownSize] { return PictureDecoder::read(file, shown); });
}

void PhotoRotator::showSample()
{
    ++m_request;
    m_files.clear();
    m_last.clear();
    m_isEmpty = true;
    if (!m_sample)
        return show({});
    m_isLoading = true;
    make([sample = m_sample, shown = m_shownSize] { return PictureDecoder::covering(sample(), shown); });
}

void PhotoRotator::make(const std::function<QImage()>& picture)
{
    const auto work = [picture] {
        yieldToOthers();
        return picture();
    };
    QtConcurrent::run(&m_workers, work).then(this, [this, request = ++m_request](const QImage& image) {
        if (request == m_request)
            show(image);
    });
}

void PhotoRotator::setLoading()
{
    m_isLoading = true;
    if (std::exchange(m_isEmpty, false))
        Q_EMIT changed();
}

void PhotoRotator::show(const QImage& image)
{
    m_isLoading = false;
    m_image = image;
    Q_EMIT changed();
}

} // namespace ambrelle
