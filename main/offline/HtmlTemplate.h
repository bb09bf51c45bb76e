// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

namespace ambrelle {

/// Pages with gaps, filled from JSON:
///
///     {{name}}             the text or number of that name, escaped for HTML, texts of attributes in quotes included
///     {{#name}}…{{/name}}  once for each object of a list, within which its names stand above those around it; once
///     for
///                          an object, a true value, a number or a text; never for what is empty, false or missing
///     {{^name}}…{{/name}}  once where the above is never
///     {{#name?}}…          once where {{#name}} is at least once, without looking into it
///     {{>name}}            what `parts` has for that name, gaps included
namespace HtmlTemplate {

struct Filled {
    QString text;
    QString fault; ///< what is wrong with the template; empty: nothing
};

Filled fill(const QString& page, const QJsonObject& values, const QHash<QString, QString>& parts = {});

} // namespace HtmlTemplate

} // namespace ambrelle
