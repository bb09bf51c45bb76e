// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace ambrelle {

/// What is on disks that may be slow, or not answer at all: asked on another thread, told later.
class PictureFiles final : public QObject {
    Q_OBJECT
public:
    struct Facts {
        bool isThere = false;
        QDateTime time{}; ///< of its last change

        bool operator==(const Facts&) const = default;
    };

    PictureFiles();
    ~PictureFiles() override;

    /// Asks for the facts about these files anew.
    void look(const QStringList& paths);
    /// None: not known yet.
    std::optional<Facts> facts(const QString& path) const;
    const QHash<QString, Facts>& known() const { return m_facts; }

    /// The pictures shipped in that folder.
    void list(const QString& folder, std::function<void(const QStringList& paths)> done);

Q_SIGNALS:
    void changed(); ///< other facts are known

private:
    void learn(const QHash<QString, Facts>& facts);

    QHash<QString, Facts> m_facts;
    SerialWorker m_worker;
};

} // namespace ambrelle
