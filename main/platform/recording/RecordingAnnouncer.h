// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Announcer.h"

#include <QStringList>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Writes down what would be shown and heard, in order: a notification as "title|body", a sound as "glass" or "hero".
class RecordingAnnouncer final : public Announcer {
public:
    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    void notify(const QString& title, const QString& body) override { said.append(title + u'|' + body); }
    void play(AnnouncedSound sound) override { said.append(sound == AnnouncedSound::glass ? u"glass"_s : u"hero"_s); }

    QStringList said;
};

} // namespace ambrelle
