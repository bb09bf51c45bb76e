// SPDX-License-Identifier: MIT

#include "offline/BatchOutput.h"

#include "foundation/WholeFile.h"
#include "wallpapers/PngWriter.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QtConcurrent>
#include <QTextStream>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostUnderWay = 4; // large ones have 20 MB

QByteArray written(const QImage& picture, const char* format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (picture.isNull() || !buffer.open(QIODevice::WriteOnly))
        return {};
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    return writer.write(picture) ? bytes : QByteArray();
}

} // namespace

BatchOutput::BatchOutput(const QString& folder, qsizetype pieces)
    : m_folder(folder)
    , m_isUnnamed(folder.isEmpty())
    , m_progress(pieces)
{
}

BatchOutput::~BatchOutput()
{
    m_pool.waitForDone();
}

bool BatchOutput::open()
{
    const QString path = m_folder.path();
    if (m_isUnnamed)
        refuse(u"No folder is named."_s);
    else if (!m_folder.mkpath(u"."_s))
        refuse(u"The folder “%1” cannot be made."_s.arg(path));
    else if (!QFileInfo(path).isWritable())
        refuse(u"The folder “%1” cannot be written to."_s.arg(path));
    return !m_isStopped;
}

void BatchOutput::add(const QString& name, Pack pack)
{
    if (m_isStopped)
        return;
    const QString path = m_folder.filePath(name);
    const auto work = [this, path, pack = std::move(pack)] {
        if (m_isStopped)
            return Result{Fate::dropped, {}};
        const QByteArray bytes = pack();
        if (bytes.isEmpty())
            return Result{Fate::notRendered, {}};
        if (m_isStopped)
            return Result{Fate::dropped, {}};
        const QString reason = writeWhole(path, bytes);
        return Result{reason.isEmpty() ? Fate::written : Fate::notWritten, reason};
    };
    m_entries.push_back({path, {}, QtConcurrent::run(&m_pool, work)});
    settle(mostUnderWay);
}

void BatchOutput::add(const QString& name, const QByteArray& bytes)
{
    add(name, [bytes] { return bytes; });
}

void BatchOutput::fail(const QString& name)
{
    add(name, QByteArray());
}

void BatchOutput::tell(const QString& line)
{
    if (m_isStopped)
        return;
    m_entries.push_back({{}, line, {}});
}

void BatchOutput::refuse(const QString& sentence)
{
    m_progress.clear();
    if (!m_isStopped.exchange(true))
        QTextStream(stderr) << "ambrelle: " << sentence << '\n';
}

int BatchOutput::finish()
{
    settle(0);
    m_pool.waitForDone();
    m_progress.clear();
    return m_isStopped ? EXIT_FAILURE : EXIT_SUCCESS;
}

void BatchOutput::settle(qsizetype most)
{
    while (!m_entries.empty()) {
        const Entry& first = m_entries.front();
        const bool isDone = !first.line.isEmpty() || first.result.isFinished();
        if (!isDone && static_cast<qsizetype>(m_entries.size()) <= most)
            return;
        settleFirst();
    }
}

void BatchOutput::settleFirst()
{
    const Entry entry = m_entries.front();
    m_entries.pop_front();
    if (!entry.line.isEmpty()) {
        if (!m_isStopped)
            print(entry.line);
        return;
    }
    const Result result = entry.result.result();
    switch (result.fate) {
    case Fate::written: return print(u"wrote "_s + entry.path);
    case Fate::notRendered:
        m_failures.insert(m_folder.relativeFilePath(entry.path));
        return print(u"failed to render "_s + QFileInfo(entry.path).completeBaseName());
    case Fate::notWritten: return refuse(u"“%1” cannot be written: %2."_s.arg(entry.path, result.reason));
    case Fate::dropped: return;
    }
}

void BatchOutput::print(const QString& line)
{
    m_progress.clear();
    const QByteArray bytes = line.toUtf8() + '\n';
    if (std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout)
            == static_cast<std::size_t>(bytes.size())
        && std::fflush(stdout) == 0)
        return m_progress.show();
    refuse(u"Standard output cannot be written to: %1."_s.arg(QString::fromLocal8Bit(std::strerror(errno))));
}

QByteArray BatchOutput::png(const QImage& picture)
{
    // Without transparency the quick way is open; there, it takes a tenth of the time.
    if (picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_RGB888)
        return encodedAsPng(picture.convertToFormat(QImage::Format_RGB888));
    return written(picture, "png", -1);
}

QByteArray BatchOutput::webp(const QImage& picture, int quality)
{
    return written(picture, "webp", quality);
}

} // namespace ambrelle
