// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/InputSerial.h"

#include <xdg-activation-v1-client-protocol.h>

#include <QObject>
#include <QString>

#include <functional>
#include <map>

class QWindow;

namespace ambrelle {

/// The tokens by which a window may take the focus that was asked for in another one.
class Activation final : public QObject {
public:
    /// The empty token: there is none.
    using Done = std::function<void(const QString& token)>;

    explicit Activation(const WaylandConnection& connection);
    ~Activation() override;

    /// The window takes the focus, now or once it is on the screen.
    void activate(QWindow& window, const QString& token);
    /// A token for a program that the user asks for with the last press of a button. Answers at once where the
    /// compositor gives none, else soon, and in the end without it.
    void request(Done done);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Question;

    void send(QWindow& window, const QString& token) const;
    void finish(Question* question, const QString& token);

    Handle<xdg_activation_v1> m_activation;
    InputSerial m_input;
    std::map<QWindow*, QString> m_waiting; ///< that are not on the screen yet
    std::map<Question*, std::unique_ptr<Question>> m_questions;
};

} // namespace ambrelle
