// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"

#include <QHash>

#include <utility>

namespace ambrelle {

/// A desktop for tests: it shows what was set unless the test lets it fail, and answers at once or when the test says
/// so.
class RecordingDesktopPicture final : public DesktopPicture {
public:
    QString unavailable; ///< why not, as a sentence; empty while available
    QString failure; ///< how set() and giveBack() end from now on; empty: well
    bool hasOneForEach = true; ///< a picture for each screen; else set() shows its first on all that show any
    bool isDeferred = false; ///< whether answers wait for answer()

    QHash<QString, QString> shown; ///< the file each connector shows, changed by set()
    QJsonObject memory; ///< what remember() answers

    QList<QList<ScreenPicture>> sets; ///< every request, also those that fail
    QStringList rememberFolders;
    QList<QJsonObject> givenBack;

    bool isAvailable() const override { return unavailable.isEmpty(); }
    QString whyNot() const override { return unavailable; }
    bool isPerScreen() const override { return hasOneForEach; }

    void set(const QList<ScreenPicture>& pictures, Done done) override
    {
        sets.append(pictures);
        reply([this, pictures, error = failure, done = std::move(done)] {
            if (error.isEmpty()) {
                for (const ScreenPicture& picture : pictures)
                    shown.insert(picture.connector, picture.file);
                for (QString& file : shown)
                    file = hasOneForEach ? file : pictures.first().file;
            }
            done(error);
        });
    }
    void read(const QString& connector, std::function<void(const QString&)> done) override
    {
        reply([this, connector, done = std::move(done)] { done(shown.value(connector)); });
    }
    void remember(const QString& folder, std::function<void(const QJsonObject&)> done) override
    {
        rememberFolders.append(folder);
        reply([this, done = std::move(done)] { done(memory); });
    }
    void giveBack(const QJsonObject& remembered, Done done) override
    {
        givenBack.append(remembered);
        reply([error = failure, done = std::move(done)] { done(error); });
    }

    qsizetype waiting() const { return m_waiting.size(); }
    void answer() ///< what was asked so far, in that order
    {
        for (const std::function<void()>& each : std::exchange(m_waiting, {}))
            each();
    }

private:
    void reply(std::function<void()> answer)
    {
        if (isDeferred)
            m_waiting.append(std::move(answer));
        else
            answer();
    }

    QList<std::function<void()>> m_waiting;
};

} // namespace ambrelle
