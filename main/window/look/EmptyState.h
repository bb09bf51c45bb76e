// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QHBoxLayout;

namespace ambrelle {

class Button;
class TextLabel;

/// Stands in the middle of a page, or of a part of one, that has nothing to show: why, and what can be done about it.
class EmptyState final : public QWidget {
    Q_OBJECT
public:
    explicit EmptyState(QWidget* parent = nullptr);

    /// `caption` may be empty.
    void setTexts(const QString& symbol, const QString& heading, const QString& caption);
    /// At most two, left to right; they belong to this from now on.
    void setButtons(const QList<QWidget*>& buttons);
    /// A search found nothing, as the sentence says. `elsewhere`: other sections have what is searched for.
    void setSearch(const QString& sentence, bool elsewhere);

Q_SIGNALS:
    void cleared(); ///< the search is to go
    void widened(); ///< all sections are to be searched

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
    QWidget* m_symbolRoom;
    TextLabel* m_heading;
    TextLabel* m_caption;
    QHBoxLayout* m_row;
    QList<QWidget*> m_buttons;
    Button* m_widen = nullptr; ///< of a search
};

} // namespace ambrelle
