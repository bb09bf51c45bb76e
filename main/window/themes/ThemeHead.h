// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QWidget>

namespace ambrelle {

class NameLabel;
class Pill;
class TextLabel;
struct ThemeFacts;

/// The name of a theme, what kind of theme it is and whether the desktop shows it. A name may be typed anew in place.
class ThemeHead final : public QWidget {
    Q_OBJECT
public:
    explicit ThemeHead(QWidget* parent = nullptr);

    void setTheme(const ThemeFacts& facts, bool isOnDesktop);
    /// Lets the user type another name: Enter takes it, and so does going elsewhere.
    void rename();
    void endRename(); ///< without another name

Q_SIGNALS:
    void renamed(const QString& name);

private:
    NameLabel* m_name;
    Pill* m_light;
    Pill* m_onDesktop;
    TextLabel* m_tagline;
    QPointer<QLineEdit> m_editor;
};

/// A name in large type, shortened where it does not fit.
class NameLabel final : public QWidget {
    Q_OBJECT
public:
    explicit NameLabel(QWidget* parent = nullptr);

    void setText(const QString& text);
    const QString& text() const { return m_text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_text;
};

/// Where a name is typed. Escape is for it alone.
class NameEditor final : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

Q_SIGNALS:
    void left(); ///< by Escape

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace ambrelle
