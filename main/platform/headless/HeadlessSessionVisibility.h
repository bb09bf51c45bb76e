#pragma once

#include "platform/SessionVisibility.h"

namespace ambrelle {

/// A desktop that is never locked.
class HeadlessSessionVisibility final : public SessionVisibility {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("Nothing here tells whether the screen is locked."); }
    bool isVisible() const override { return true; }
};

} // namespace ambrelle
