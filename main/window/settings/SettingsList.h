// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/MainWindowModel.h"

#include <QListView>
#include <QSet>

namespace ambrelle {

QString title(SettingsChapter chapter);

/// The sections of the settings; the chosen one is shown beside it. Those without anything that one looks for are
/// dimmed.
class SettingsList final : public QListView {
    Q_OBJECT
public:
    explicit SettingsList(QWidget* parent = nullptr);

    void setChosen(SettingsChapter chapter); ///< tells nothing
    /// While one looks for settings none is chosen, and those stand out that have some.
    void setFound(const std::optional<QSet<SettingsChapter>>& found);
    void setNews(SettingsChapter chapter, const QString& news); ///< a dot and what it means; empty: none

    void setMargins(int sides, int top); ///< around the sections, points

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void chose(ambrelle::SettingsChapter chapter); ///< by the user

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void chooseCurrent();

    bool m_searching = false;
};

} // namespace ambrelle
