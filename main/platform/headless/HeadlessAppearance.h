#pragma once

#include "platform/SystemAppearance.h"

namespace ambrelle {

/// Always light, and nothing ever tells otherwise.
class HeadlessAppearance final : public SystemAppearance {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode does not follow the desktop's appearance."); }
    bool isDark() const override { return false; }
};

} // namespace ambrelle
