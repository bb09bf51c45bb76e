// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace ambrelle {

class Button;
class TextLabel;

/// Stands in the middle of a page whose search found nothing.
class NothingFound final : public QWidget {
    Q_OBJECT
public:
    explicit NothingFound(QWidget* parent = nullptr);

    /// `elsewhere`: other sections have what is searched for.
    void setSearch(const QString& sentence, bool elsewhere);

Q_SIGNALS:
    void cleared(); ///< the search is to go
    void widened(); ///< all sections are to be searched

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextLabel* m_heading;
    Button* m_widen;
};

} // namespace ambrelle
