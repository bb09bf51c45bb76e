// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Choice.h"
#include "foundation/Ticket.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace ambrelle {

class Clock;
class SerialWorker;

/// The pictures of a folder, one after another in no order. Folders are listed and pictures decoded by `worker`, so
/// that neither a slow disk nor a huge picture holds anybody up.
class PhotoRotator : public QObject {
    Q_OBJECT
public:
    using Sample = std::function<QImage()>; ///< any thread may call it

    /// `sample` makes what is shown while there is no folder; without it nothing is.
    PhotoRotator(Clock& clock, SerialWorker& worker, Choice choose = chooseAtRandom, Sample sample = {});

    /// Another folder than before is listed and one of its pictures shown; with an interval of 1 or more (minutes) the
    /// next one follows every so often. `shown`: the pixels a picture has to cover; when they change, the same picture
    /// is decoded anew.
    void configure(const std::optional<QString>& folder, int intervalMinutes, QSize shown);
    /// Chooses a picture, another one than the last if there is another.
    void next();
    void loadPreview(const QImage& image);

    /// The picture, at least as large as it is shown unless the file is smaller. Null while there is none, and when the
    /// chosen file is no picture.
    QImage image() const { return m_image; }
    QString name() const { return m_name; } ///< of that picture's file; empty while it shows none of a folder
    bool isEmpty() const { return m_isEmpty; } ///< there is no folder, or no picture in it
    bool isLoading() const { return m_isLoading; } ///< a folder is being listed or a picture decoded

Q_SIGNALS:
    void changed();

private:
    void listFolder();
    void take(const QStringList& files);
    void decodeLast();
    void showSample();
    void make(const std::function<QImage()>& picture, const QString& name = {});
    void show(const QImage& image, const QString& name = {});
    void setLoading();

    Clock& m_clock;
    SerialWorker& m_worker;
    Choice m_choose;
    Sample m_sample;
    std::optional<QString> m_folder;
    QStringList m_files; ///< paths
    QString m_last; ///< the file chosen last; empty: none
    QSize m_shownSize;
    QImage m_image;
    QString m_name; // of what is shown
    bool m_isEmpty = true;
    bool m_isLoading = false;
    int m_request = 0; ///< a newer one makes older ones void
    Ticket m_timer;
};

namespace PhotoFolder {

/// The paths of the files in the folder, not below it, whose extension is that of a picture; in order. Hidden files do
/// not count. Empty when the folder cannot be read.
QStringList pictures(const QString& folder);

} // namespace PhotoFolder

} // namespace ambrelle
