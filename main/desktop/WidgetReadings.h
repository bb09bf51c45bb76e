// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKinds.h"

#include <QList>
#include <QObject>

namespace ambrelle {

class ReadingFeed;
class WidgetController;

/// Gives the widgets on the desktop a new reading whenever theirs may be another.
class WidgetReadings : public QObject {
public:
    /// `widgets` may change; a new one is renewed by its owner.
    WidgetReadings(const ReadingFeed& feed, const QList<WidgetController*>& widgets);

    void renew(WidgetController& widget) const;

private:
    void renewAll(const WidgetKinds& kinds) const;

    const ReadingFeed& m_feed;
    const QList<WidgetController*>& m_widgets;
};

} // namespace ambrelle
