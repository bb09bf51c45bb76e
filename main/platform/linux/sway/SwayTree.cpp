// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayTree.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// An empty one for what is no place on any screen.
QRectF rectIn(const QJsonObject& node, QLatin1StringView name)
{
    constexpr double farthest = 1e6;
    const QJsonObject told = node.value(name).toObject();
    const double x = told.value("x"_L1).toDouble();
    const double y = told.value("y"_L1).toDouble();
    const double width = told.value("width"_L1).toDouble();
    const double height = told.value("height"_L1).toDouble();
    const bool isPlace = std::abs(x) < farthest && std::abs(y) < farthest && width > 0 && width < farthest && height > 0
        && height < farthest;
    return isPlace ? QRectF(x, y, width, height) : QRectF();
}

/// Sway cuts the title bars from the top of a window's rectangle: its own, or those of all in a stack.
double titleHeight(const QJsonObject& window, const QJsonObject& parent)
{
    const double bar = rectIn(window, "deco_rect"_L1).height();
    const bool isStacked = parent.value("layout"_L1) == "stacked"_L1;
    return bar * static_cast<double>(isStacked ? parent.value("nodes"_L1).toArray().size() : 1);
}

void collectWindow(const QJsonObject& node, const QJsonObject& parent, QList<SwayWindow>& windows)
{
    const QRectF rect = rectIn(node, "rect"_L1);
    if (!rect.isEmpty() && node.value("visible"_L1).toBool(true))
        windows.append({rect.adjusted(0, -titleHeight(node, parent), 0, 0), node.value("pid"_L1).toInteger(),
            node.value("fullscreen_mode"_L1).toInt() != 0});
}

void collectWindows(const QJsonObject& node, QList<SwayWindow>& windows)
{
    for (const QLatin1StringView kind : {"nodes"_L1, "floating_nodes"_L1}) {
        for (const QJsonValue& each : node.value(kind).toArray()) {
            const QJsonObject child = each.toObject();
            // Only windows have a process.
            if (child.contains("pid"_L1))
                collectWindow(child, node, windows);
            else
                collectWindows(child, windows);
        }
    }
}

/// What the display says about itself; Sway has a word for those that say nothing.
QString told(const QJsonObject& output, QLatin1StringView name)
{
    const QString text = output.value(name).toString().trimmed();
    return text == "Unknown"_L1 ? QString() : text;
}

} // namespace

std::optional<QList<SwayWindow>> swayWindows(const QByteArray& tree)
{
    const QJsonObject root = QJsonDocument::fromJson(tree).object();
    if (root.value("type"_L1) != "root"_L1)
        return std::nullopt;
    QList<SwayWindow> windows;
    collectWindows(root, windows);
    return windows;
}

std::optional<QList<SwayOutput>> swayOutputs(const QByteArray& outputs, const QByteArray& workspaces)
{
    const QJsonDocument all = QJsonDocument::fromJson(outputs);
    const QJsonDocument shown = QJsonDocument::fromJson(workspaces);
    if (!all.isArray() || !shown.isArray())
        return std::nullopt;
    QHash<QString, QRectF> usable;
    for (const QJsonValue& each : shown.array()) {
        const QJsonObject workspace = each.toObject();
        if (workspace.value("visible"_L1).toBool())
            usable.insert(workspace.value("output"_L1).toString(), rectIn(workspace, "rect"_L1));
    }
    QList<SwayOutput> known;
    for (const QJsonValue& each : all.array()) {
        const QJsonObject output = each.toObject();
        const QString name = output.value("name"_L1).toString();
        const QRectF place = rectIn(output, "rect"_L1);
        if (!output.value("active"_L1).toBool() || name.isEmpty() || place.isEmpty())
            continue;
        const QRectF left = usable.value(name) & place;
        known.append({name, told(output, "make"_L1), told(output, "model"_L1), told(output, "serial"_L1), place,
            left.isEmpty() ? place : left});
    }
    return known;
}

} // namespace ambrelle
