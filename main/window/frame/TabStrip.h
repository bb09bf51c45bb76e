// SPDX-License-Identifier: MIT

#pragma once

#include <QTabBar>

namespace ambrelle {

/// The window's tabs as one segmented row. Where not all words have room, only the chosen tab keeps its word.
class TabStrip final : public QTabBar {
    Q_OBJECT
public:
    explicit TabStrip(QWidget* parent = nullptr);

    /// Its width with all words.
    int fullWidth() const;
    void setCompact(bool compact);

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    QSize tabSizeHint(int index) const override;
    void paintEvent(QPaintEvent* event) override;
    void tabLayoutChange() override;

private:
    int widthOf(int index, bool withWord) const;
    void layOut();

    bool m_compact = false;
};

} // namespace ambrelle
