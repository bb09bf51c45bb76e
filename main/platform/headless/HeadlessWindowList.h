#pragma once

#include "platform/WindowList.h"

namespace ambrelle {

/// A machine whose windows nobody can list: nothing is ever covered.
class HeadlessWindowList final : public WindowList {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("The windows of other programs cannot be seen here."); }
    std::optional<QList<OnscreenWindow>> windows() const override { return std::nullopt; }
    void setWatching(bool) override { }
};

} // namespace ambrelle
