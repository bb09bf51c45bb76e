// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>

namespace ambrelle {

/// Lays things out side by side in their own sizes, in as many lines as the width asks for. What is wider than a line
/// is narrowed to it; those of one line stand on its middle.
class FlowLayout final : public QLayout {
public:
    FlowLayout(int gap, int lineGap, QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { m_items.append(item); }
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    int arrange(const QRect& area, bool place) const;
    void placeLine(const QList<QLayoutItem*>& line, const QRect& area, int top, int height) const;

    int m_gap;
    int m_lineGap;
    QList<QLayoutItem*> m_items;
};

} // namespace ambrelle
