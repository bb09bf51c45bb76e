// SPDX-License-Identifier: MIT

#pragma once

#include <QSpinBox>
#include <QWidget>

class QLineEdit;

namespace ambrelle {

class Button;
class Progress;
struct RowRange;

/// A number with arrows. It changes on Enter, by the arrows and when the focus goes; the wheel leaves it alone, since
/// the page scrolls under the pointer.
class NumberField final : public QSpinBox {
    Q_OBJECT
public:
    explicit NumberField(const RowRange& range, QWidget* parent = nullptr);

Q_SIGNALS:
    void confirmed(); ///< Enter, or the focus going after something was typed, whether that is another number or not

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool m_typed = false;
};

/// A line of text, and the button that stores it.
class TextEntry final : public QWidget {
    Q_OBJECT
public:
    TextEntry(const QString& placeholder, const QString& button, QWidget* parent = nullptr);

    /// What is stored by now; replaces what stands there, unless the user is typing something else.
    void setStored(const QString& text);
    /// Shows that the text is being looked at, and why, beside it; empty: it is not.
    void setBusy(const QString& why);
    QLineEdit* field() const { return m_field; }
    Button* button() const { return m_button; }

Q_SIGNALS:
    void entered(const QString& text); ///< trimmed, and not what is stored

private:
    void enter();
    void judge();

    Progress* m_progress;
    QLineEdit* m_field;
    Button* m_button;
    QString m_stored;
};

} // namespace ambrelle
