// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>

namespace ambrelle {

/// The widgets on the desktop (`desktopWidgetRole`), of which several may be chosen.
class DesktopList final : public QListView {
    Q_OBJECT
public:
    explicit DesktopList(QWidget* parent = nullptr);

    QModelIndexList chosen() const; ///< in their order

Q_SIGNALS:
    void chosenChanged();
    void used(); ///< Enter or a double click
    void removeRequested(); ///< the Delete key
    void menuRequested(const QPoint& globalPosition);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void dress();
    void openMenuAtCurrent();
};

} // namespace ambrelle
