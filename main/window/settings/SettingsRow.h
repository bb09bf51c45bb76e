// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QBoxLayout;

namespace ambrelle {

class TextLabel;

/// What a row of settings says.
struct RowText {
    QString name;
    QString caption; ///< below it; empty: none
    QString spoken; ///< the control's name for those who cannot see the row; empty: `name`
    QStringList keywords; ///< that find it besides name and caption
};

/// A setting: its name, a caption below and the control at the right, or below where there is no room. A click on the
/// name works the control.
class SettingsRow final : public QWidget {
    Q_OBJECT
public:
    /// `control` is named and described by the texts, except one that tells its own text, as a push button does.
    SettingsRow(RowText text, QWidget* control, QWidget* parent = nullptr);

    const RowText& text() const { return m_text; }
    QWidget* control() const { return m_control; }
    void setCaption(const QString& caption, bool failure = false);
    /// Disables the control and tells `why` as its tool tip; empty: enables it.
    void setUnavailable(const QString& why);

    void work(); ///< as a click on the name does

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void dress();
    QWidget* spokenControl() const;

    RowText m_text;
    QWidget* m_control;
    QBoxLayout* m_line;
    TextLabel* m_name;
    TextLabel* m_caption;
};

/// Rows on a surface with lines between them, under a heading.
class SettingsGroup final : public QWidget {
    Q_OBJECT
public:
    /// `title` may be empty.
    explicit SettingsGroup(const QString& title, QWidget* parent = nullptr);

    void add(QWidget* row);
    const QString& title() const { return m_title; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    QBoxLayout* m_column;
    QList<QWidget*> m_rows;
};

} // namespace ambrelle
