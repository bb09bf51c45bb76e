// SPDX-License-Identifier: MIT

#pragma once

#include "placement/StoredWidget.h"

#include <QList>

namespace ambrelle {

class UserDefaults;

/// Where the widgets outlive the program.
class WidgetStore {
public:
    explicit WidgetStore(UserDefaults& defaults)
        : m_defaults(defaults)
    {
    }

    /// In the order of creation; records that cannot be read are left out, and nothing is changed.
    QList<StoredWidget> load() const;
    /// Replaces everything that is stored.
    void save(const QList<StoredWidget>& widgets);

private:
    UserDefaults& m_defaults;
};

} // namespace ambrelle
