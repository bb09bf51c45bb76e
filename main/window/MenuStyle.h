#pragma once

#include <QProxyStyle>

namespace ambrelle {

/// How the program's menus look: a line around them, check marks without boxes, and a plate in the accent colour behind
/// the symbol of a checked line, all of which show in the dark too.
class MenuStyle final : public QProxyStyle {
    Q_OBJECT
public:
    static QStyle* shared();

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;

private:
    explicit MenuStyle(QObject* parent);
};

} // namespace ambrelle
