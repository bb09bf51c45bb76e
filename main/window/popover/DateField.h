// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QStackedWidget>

#include <functional>
#include <optional>

class QDateTimeEdit;
class QPushButton;

namespace ambrelle {

/// A moment that may be unset: a button that sets it, then a field with a calendar and a button that unsets it.
class DateField final : public QStackedWidget {
    Q_OBJECT
public:
    /// `fresh` gives the moment that is offered first.
    DateField(const QString& invitation, std::function<QDateTime()> fresh, QWidget* parent = nullptr);

    void setMoment(const std::optional<QDateTime>& moment); ///< tells nothing
    void setAccessibleName(const QString& name);

    QPushButton* setButton() const { return m_set; }
    QPushButton* clearButton() const { return m_clear; }
    QDateTimeEdit* editor() const { return m_edit; }

Q_SIGNALS:
    void chose(const std::optional<QDateTime>& moment); ///< by the user

private:
    QPushButton* m_set;
    QDateTimeEdit* m_edit;
    QPushButton* m_clear;
};

} // namespace ambrelle
