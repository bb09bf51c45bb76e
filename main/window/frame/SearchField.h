// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

namespace ambrelle {

/// Where one types what to search for.
class SearchField final : public QLineEdit {
    Q_OBJECT
public:
    explicit SearchField(QWidget* parent = nullptr);

    void setWhat(const QString& placeholder, const QString& text); ///< tells nothing

Q_SIGNALS:
    void typed(const QString& text); ///< by the user
    void leftDownwards(); ///< to what was found
    void entered(); ///< the first of what was found is wanted

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_isBeingSet = false;
};

} // namespace ambrelle
