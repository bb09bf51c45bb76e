// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/IcsReader.h"

#include <QByteArray>

#include <functional>
#include <vector>

namespace ambrelle {

/// Changes single properties in the text of a component; everything else keeps its bytes, its order and its line ends.
class ComponentEdit {
public:
    /// The component and its text must outlive the edit.
    explicit ComponentEdit(const IcsComponent& component);

    bool has(const char* name) const;
    QByteArray value(const char* name) const; ///< unfolded; empty without the property

    /// The property becomes this one alone, without parameters; a new one goes to the end.
    void set(const char* name, const QByteArray& value);
    /// A new value behind the parameters that are there.
    void setValue(const char* name, const QByteArray& value);
    void rewriteValues(const char* name, const std::function<QByteArray(const QByteArray& value)>& rewritten);
    void remove(const char* name);

    QByteArray text() const;

private:
    struct Line {
        IcsLine original;
        QByteArray text;
        bool isKept = true; ///< with its own bytes, not `text`
    };
    QByteArray ended(const QByteArray& content) const;

    const IcsComponent& m_component;
    QByteArray m_lineEnd;
    std::vector<Line> m_lines;
    QByteArray m_added;
};

} // namespace ambrelle
