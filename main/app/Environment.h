// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>

namespace ambrelle {

/// What the toolkit is told before the application object exists, and untold afterwards.
class Environment final : public QObject {
public:
    /// `plugin`: the toolkit's platform plugin to run on.
    explicit Environment(const QByteArray& plugin);
    ~Environment() override; ///< what is not restored yet is now

    /// The platform plugin that the user asks for; empty: none in particular.
    static QByteArray wishedPlugin();
    /// The variables that child processes inherit are the user's again, at the latest when a window is first repainted;
    /// but for the one that a Wayland host takes from programs itself. Needs the application object.
    void restore();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Variable {
        const char* name;
        QByteArray value; ///< null: it was not set
    };

    void put(const char* name, const QByteArray& value);
    void restore(const char* name);

    QList<Variable> m_replaced;
};

} // namespace ambrelle
