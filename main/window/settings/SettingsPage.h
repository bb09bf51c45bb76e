// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/Page.h"
#include "window/frame/WindowContext.h"

namespace ambrelle {

class SettingsPage final : public Page {
public:
    explicit SettingsPage(const WindowContext& context);

    void takeFocus(bool first) override;
    void openFirst() override;
    QList<QWidget*> areas() override;

private:
    WindowContext m_with;
};

} // namespace ambrelle
