// SPDX-License-Identifier: MIT

#pragma once

#include "app/AppDelegate.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"

#include <QImage>

namespace ambrelle {

/// The whole program as it is before it starts anything, with sample data and settings that nobody keeps.
class SampleProgram {
public:
    /// `photo` stands for photos and artwork.
    SampleProgram(std::unique_ptr<Machine> machine, const QImage& photo);

    const WindowContext& context() const { return m_delegate.context(); }

private:
    std::unique_ptr<Machine> m_machine;
    UserDefaults m_defaults = UserDefaults::temporary();
    AppSettings m_settings{m_defaults};
    AppDelegate m_delegate;
};

} // namespace ambrelle
