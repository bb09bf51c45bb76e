// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

#include <optional>

namespace ambrelle {

/// A city of the world, chosen from the list or by typing its first letters; the first entry is none: the local time. A
/// name that is in no list gives way to what was there, and a tip says so.
class CityChooser final : public QComboBox {
    Q_OBJECT
public:
    struct City {
        QString name;
        QString zone; ///< of the IANA time zone database
    };

    explicit CityChooser(QWidget* parent = nullptr);

    /// Shows what a widget is set to, also when it is in no list. Tells nothing.
    void setChosen(const std::optional<QString>& name, const std::optional<QString>& zone);

Q_SIGNALS:
    void chose(const std::optional<ambrelle::CityChooser::City>& city); ///< by the user

private:
    void take();
    void refuse(const QString& typed);

    QString m_shown;
};

} // namespace ambrelle
