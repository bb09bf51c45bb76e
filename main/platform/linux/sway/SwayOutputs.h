// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/sway/SwaySocket.h"
#include "platform/linux/sway/SwayTree.h"

#include <QDeadlineTimer>
#include <QTimer>

#include <chrono>
#include <optional>

namespace ambrelle {

/// What Sway knows of the outputs. It does not tell when a bar takes room or gives it back, and not every Sway tells
/// that an output changed; so whoever asks for an output also has it looked at again.
class SwayOutputs final : public QObject {
    Q_OBJECT
public:
    /// `path` is where Sway listens; empty: no output is ever known.
    explicit SwayOutputs(const QString& path);

    /// As known now; none of that name, or before Sway has answered: then changed() tells.
    std::optional<SwayOutput> output(const QString& name);
    /// For the start, when there is no time to be told later; whether Sway has answered by then.
    bool waitForAnswer(std::chrono::milliseconds most);
    void refresh(); ///< asks Sway again; changed() tells if it says something else

Q_SIGNALS:
    void changed();

private:
    void ask();

    SwaySocket m_socket;
    QTimer m_soon;
    QDeadlineTimer m_fresh; ///< until then there is no need to look again
    QByteArray m_told; ///< of the outputs, while the workspaces are asked for
    std::optional<QList<SwayOutput>> m_outputs;
};

} // namespace ambrelle
