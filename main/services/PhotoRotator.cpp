// SPDX-License-Identifier: MIT

#include "services/PhotoRotator.h"

#include "foundation/BackgroundThread.h"
#include "foundation/Clock.h"
#include "foundation/ForeignText.h"
#include "foundation/SerialWorker.h"
#include "services/PictureDecoder.h"

#include <QDir>
#include <QImageReader>
#include <QPointer>
#include <QSet>

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

PhotoRotator::PhotoRotator(Clock& clock, SerialWorker& worker, Choice choose, Sample sample)
    : m_clock(clock)
    , m_worker(worker)
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
    m_worker.run(list, [self = QPointer(this), request = m_request](const QStringList& files) {
        if (self && request == self->m_request)
            self->take(files);
    });
}

void PhotoRotator::take(const QStringList& files)
{
    m_files = files;
    m_isEmpty = files.isEmpty();
    if (m_isEmpty)
        show({});
    else
        next();
}

void PhotoRotator::decodeLast()
{
    setLoading();
    make([file = m_last, shown = m_shownSize] { return PictureDecoder::read(file, shown); },
        foreignText(QFileInfo(m_last).completeBaseName()));
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

void PhotoRotator::make(const std::function<QImage()>& picture, const QString& name)
{
    const auto work = [picture] {
        yieldToOthers();
        return picture();
    };
    m_worker.run(work, [self = QPointer(this), request = ++m_request, name](const QImage& image) {
        if (self && request == self->m_request)
            self->show(image, name);
    });
}

void PhotoRotator::setLoading()
{
    m_isLoading = true;
    if (std::exchange(m_isEmpty, false))
        Q_EMIT changed();
}

void PhotoRotator::show(const QImage& image, const QString& name)
{
    m_isLoading = false;
    m_image = image;
    m_name = name;
    Q_EMIT changed();
}

} // namespace ambrelle
