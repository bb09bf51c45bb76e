// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

namespace ambrelle {

/// Shows a widget above the first line of a grid and moves it along with the lines. It is the grid's neighbour, not its
/// child: among a list's children assistive technology would find rows only.
class CardHeader final : public QWidget {
    Q_OBJECT
public:
    /// Follows `view`, also into another parent.
    explicit CardHeader(QWidget* view);
    ~CardHeader() override;

    void setContents(QWidget* contents); ///< takes it over; none: nothing is shown
    /// How high the contents want to be at that width, and the gap below; 0 while there are none to show.
    int heightFor(int width) const;
    /// `left` and `top` are the first line's in points of the view, `top` as if unscrolled; `floor` is the view's
    /// height.
    void place(int left, int top, int width, int floor, int scrolled);

    static constexpr int gapBelow = 14;

Q_SIGNALS:
    void resized(); ///< the contents came, went or want another height

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QWidget* m_view;
    QPointer<QWidget> m_contents;
};

} // namespace ambrelle
