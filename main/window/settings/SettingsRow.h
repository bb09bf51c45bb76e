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
    /// `control` is named and described by the texts, except one that tells its own text, as a push button does. It may
    /// be null: the row only tells something.
    SettingsRow(RowText text, QWidget* control, QWidget* parent = nullptr);

    const RowText& text() const { return m_text; }
    QWidget* control() const { return m_control; }
    void setName(const QString& name, bool failure = false); ///< as it is seen
    void setCaption(const QString& caption, bool failure = false);
    void setLead(QWidget* lead); ///< before the texts
    void setLeastHeight(int points);
    /// Disables the control and tells `why` as its tool tip; empty: enables it.
    void setUnavailable(const QString& why);
    void arrange(); ///< anew: the control may need another room

    void work(); ///< as a click on the name does

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void dress();
    QWidget* spokenControl() const;
    void nameControl();

    RowText m_text;
    QWidget* m_control;
    QBoxLayout* m_line;
    TextLabel* m_name;
    TextLabel* m_caption;
    bool m_failure = false; // is what the caption tells
    int m_leastHeight = 0; // points; 0: as the texts want it
};

/// Rows on a surface with lines between them, under a heading.
class SettingsGroup final : public QWidget {
    Q_OBJECT
public:
    /// `title` may be empty.
    explicit SettingsGroup(const QString& title, QWidget* parent = nullptr);

    void add(QWidget* row);
    const QString& title() const { return m_title; }
    /// What is left when rows are hidden: without any the group is hidden too, and a title may be left out.
    void arrange(bool withTitle);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    TextLabel* m_heading = nullptr;
    QBoxLayout* m_column;
    QList<QWidget*> m_rows;
};

} // namespace ambrelle
