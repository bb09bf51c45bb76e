// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "platform/DesktopPicture.h"
#include "platform/x11/root/RootPixmap.h"

namespace ambrelle {

/// The desktop picture where no desktop draws one: the root window's own. The picture and a note of which file it shows
/// stay on the X server when the program ends. Make it after the application object.
class RootPixmapPicture final : public DesktopPicture {
public:
    RootPixmapPicture();

    bool isAvailable() const override;
    QString whyNot() const override;
    bool isPerScreen() const override { return true; }
    void set(const QList<ScreenPicture>& pictures, Done done) override;
    void read(const QString& connector, std::function<void(const QString& file)> done) override;
    void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) override;
    void giveBack(const QJsonObject& memory, Done done) override;

private:
    using Areas = QHash<QString, QRect>; ///< the native pixels of each connector

    static Areas areas();
    // These wait.
    static QString show(const QList<ScreenPicture>& pictures, const Areas& areas);
    static QString showWhole(const QString& file);
    static QJsonObject memory(const QString& folder, const QStringList& connectors);

    SerialWorker m_worker;
};

} // namespace ambrelle
