// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Typeface.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>

#include <concepts>
#include <optional>
#include <type_traits>

namespace ambrelle {

/// The name of a still layer with the values that it depends on: equal values, equal keys.
class LayerKey {
public:
    explicit LayerKey(const QString& name)
        : m_text(name)
    {
    }

    const QString& text() const { return m_text; }

    template <std::integral Number> void add(Number value) { part(QString::number(static_cast<qlonglong>(value))); }
    template <std::floating_point Number> void add(Number value)
    {
        part(QString::number(static_cast<double>(value), 'g', 9));
    }
    template <typename Choice>
    requires std::is_enum_v<Choice>
    void add(Choice value) { add(static_cast<std::underlying_type_t<Choice>>(value)); }
    void add(QChar value) { part(QString(value)); }
    void add(const QString& value)
    {
        add(value.size()); // no text can pose as two values
        part(value);
    }
    void add(const QColor& value) { part(QString::number(value.rgba(), 16)); }
    void add(QPointF value)
    {
        add(value.x());
        add(value.y());
    }
    void add(QSizeF value)
    {
        add(value.width());
        add(value.height());
    }
    void add(const QRectF& value)
    {
        add(value.topLeft());
        add(value.size());
    }
    void add(const QImage& picture) { add(picture.cacheKey()); }
    void add(const Typeface& face)
    {
        add(face.family);
        add(face.weight);
        add(face.italic);
        add(face.tracking);
    }
    template <typename Value> void add(const std::optional<Value>& value)
    {
        add(value.has_value());
        if (value)
            add(*value);
    }
    template <typename Value> void add(const QList<Value>& values)
    {
        add(values.size());
        for (const Value& value : values)
            add(value);
    }

private:
    void part(const QString& text) { m_text += u' ' + text; }

    QString m_text;
};

} // namespace ambrelle
