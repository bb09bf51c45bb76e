// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

namespace ambrelle {

/// A push button with one of the looks they have here, and a symbol beside its text. Without a text it is square, and
/// its accessible name is its tool tip too.
class Button final : public QPushButton {
    Q_OBJECT
public:
    /// What a click means: something, the chief thing, taking something away; `link` looks like text, `quiet` has no
    /// plate until the pointer is over it.
    enum class Kind { plain, primary, danger, link, quiet };

    explicit Button(const QString& text, Kind kind = Kind::plain, QWidget* parent = nullptr);
    /// One that is only a symbol.
    static Button* symbolOnly(const QString& symbol, const QString& name, Kind kind = Kind::quiet);

    /// Ampersands are shown, and make no shortcut.
    void setText(const QString& text);
    const QString& title() const { return m_title; } ///< the text as it is shown

    Kind kind() const { return m_kind; }
    void setKind(Kind kind);
    const QString& symbol() const { return m_symbol; }
    void setSymbol(const QString& name); ///< empty: none
    void setNews(const QString& news); ///< a dot and what it means; empty: none

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor plate() const; ///< invalid: none
    QColor ink() const;
    void paintNews(QPainter& painter) const;

    Kind m_kind;
    QString m_title;
    QString m_symbol;
};

} // namespace ambrelle
