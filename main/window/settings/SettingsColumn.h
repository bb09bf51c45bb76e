// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace ambrelle {

class EmptyState;
class SettingsSection;
class TextLabel;

/// Sections of settings below each other, in a column that is as wide as can be read and scrolls where it must.
class SettingsColumn final : public QScrollArea {
    Q_OBJECT
public:
    explicit SettingsColumn(QWidget* parent = nullptr);

    /// Adds it as number `place`, hidden.
    void insert(int place, SettingsSection* section, const QString& title);
    void showSection(const SettingsSection* section, bool shown, bool withTitle);
    /// In place of sections: that there is nothing, under a heading; empty: sections are there.
    void setNothing(const QString& heading);
    void toTop();
    void orderTabs(); ///< as the rows stand
    bool focusFirst(); ///< the first control that is seen

Q_SIGNALS:
    void searchCleared();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    struct Entry {
        int place;
        SettingsSection* section;
        TextLabel* title;
    };

    void fit();

    QWidget* m_content;
    QVBoxLayout* m_rows;
    EmptyState* m_nothing;
    QList<Entry> m_entries; // by place
};

} // namespace ambrelle
