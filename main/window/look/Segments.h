// SPDX-License-Identifier: MIT

#pragma once

#include <QRadioButton>
#include <QWidget>

#include <optional>

class QButtonGroup;

namespace ambrelle {

class Segment;

/// A choice of a few titles side by side, of which one is chosen; the arrow keys go from one to the next. Where they do
/// not fit, counts go first, then words: only the chosen one keeps its word beside its symbol, the others have it as
/// their tool tip.
class Segments final : public QWidget {
    Q_OBJECT
public:
    struct Item {
        QString title;
        QString symbol; ///< none: the title is never left out
        std::optional<int> count;
    };

    explicit Segments(const QList<Item>& items, QWidget* parent = nullptr);
    explicit Segments(const QStringList& titles, QWidget* parent = nullptr);

    void setChosen(int index); ///< tells nothing
    int chosen() const;
    void setCount(int index, std::optional<int> count); ///< of what is behind a title
    /// What is chosen here, for those who cannot see it.
    void setAccessibleName(const QString& name);
    /// Points; `WindowStyle::controlHeight` unless set.
    void setLeastHeight(int height);

    QSize sizeHint() const override; ///< with everything
    QSize minimumSizeHint() const override; ///< folded as far as can be

Q_SIGNALS:
    void chose(int index); ///< by the user

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class Fold { none, counts, words };

    int widthOf(Fold fold) const;
    void arrange();

    QButtonGroup* m_group;
    QList<Segment*> m_segments;
    int m_leastHeight;
};

/// One title of them.
class Segment final : public QRadioButton {
    Q_OBJECT
public:
    explicit Segment(const Segments::Item& item, QWidget* parent);

    struct Parts {
        bool word = true;
        bool count = true;
    };
    int widthOf(Parts parts) const;
    void show(Parts parts);
    bool setCount(std::optional<int> count); ///< whether it is another
    bool folds() const { return !m_symbol.isEmpty(); }

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
    void paintEvent(QPaintEvent* event) override;

private:
    QString countText(Parts parts) const;

    QString m_symbol;
    std::optional<int> m_count;
    Parts m_parts;
};

} // namespace ambrelle
