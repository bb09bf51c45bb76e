// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "model/WidgetCategory.h"

#include <QWidget>

class QComboBox;

namespace ambrelle {

class Segments;
class SkinChooser;
class TextLabel;

/// What the page of widgets is about: a category, the skin of new widgets and, in a narrow window, which half is shown.
class WidgetsScope final : public QWidget {
    Q_OBJECT
public:
    enum class Half { gallery, desktop };

    explicit WidgetsScope(QWidget* parent = nullptr);

    void setCategory(WidgetCategory category); ///< these two tell nothing
    void setSkin(Skin skin);
    /// For a page of that width, with margins in reading order, points; only in `halves` the halves can be chosen.
    void arrange(int width, const QMargins& margins, bool halves);
    Half half() const;
    QWidget& first() const; ///< what the keyboard comes to first
    QWidget& last() const;

Q_SIGNALS:
    void categoryChosen(ambrelle::WidgetCategory category); ///< by the user
    void skinChosen(ambrelle::Skin skin);
    void halfChosen();

private:
    Segments* m_segments;
    QComboBox* m_categories;
    Segments* m_halves;
    TextLabel* m_label;
    SkinChooser* m_skins;
};

} // namespace ambrelle
