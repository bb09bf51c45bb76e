// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>

#include <utility>

namespace ambrelle {

/// What the toolkit is told before the application object exists, and untold afterwards.
class Environment final : public QObject {
public:
    using Variables = QList<std::pair<const char*, const char*>>;

    /// `plugin`: the toolkit's platform plugin to run on; `lasting`: what its host wishes until the end.
    Environment(const QByteArray& plugin, const Variables& lasting);
    ~Environment() override; ///< what is not restored yet is now

    /// The variables that child processes inherit are the user's again, at the latest when a window is first repainted;
    /// but for what lasts. Needs the application object.
    void restore();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Variable {
        const char* name;
        QByteArray value; ///< null: it was not set
        bool lasts = false; ///< until the end
    };

    void put(const char* name, const QByteArray& value, bool lasts = false);
    void restore(const char* name);

    QList<Variable> m_replaced;
};

} // namespace ambrelle
