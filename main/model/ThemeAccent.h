// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QMap>
#include <QObject>

#include <functional>
#include <map>
#include <mutex>
#include <vector>

namespace ambrelle {

class UserDefaults;

/// "#RRGGBB" in capitals, sRGB; empty for an invalid colour. Opacity is left out.
QString hexText(const QColor& color);
/// The colour of "#RRGGBB" in either case; nothing for any other text.
std::optional<QColor> colorFromHex(QStringView text);

/// The accents that the user chose in place of the skins' own. Any thread may ask for a colour; changes and previews
/// are made on the main thread.
class ThemeAccent : public QObject {
    Q_OBJECT

public:
    explicit ThemeAccent(UserDefaults& defaults, QObject* parent = nullptr);
    static ThemeAccent& shared(); ///< the main thread is the first to ask for it

    /// Nothing: the skin shows its own accent.
    std::optional<QColor> color(Skin skin) const;
    /// Stores an accent, or takes it back when `color` is nothing or invalid.
    void set(const std::optional<QColor>& color, Skin skin);
    /// Runs `body`; what is drawn meanwhile sees `color` (nothing: the skin's own) as the skin's accent.
    void withPreview(const std::optional<QColor>& color, Skin skin, const std::function<void()>& body);

    /// The accents as a map from the skin's raw value to "#RRGGBB".
    QMap<QString, QString> hexOverrides() const;
    /// Replaces every accent; entries of unknown skins or with malformed colours are skipped.
    void apply(const QMap<QString, QString>& overrides);

    /// Grows with every change. Main thread.
    int revision() const { return m_revision; }

Q_SIGNALS:
    /// An accent is another one; on the main thread.
    void changed();

private:
    using Overrides = std::map<Skin, QColor>;
    struct Preview {
        Skin skin;
        std::optional<QColor> color;
    };

    void replace(Overrides overrides);
    void store(const Overrides& overrides);

    UserDefaults& m_defaults;
    mutable std::mutex m_mutex; // for changes of the two below, and for other threads that read them
    Overrides m_overrides;
    std::vector<Preview> m_previews; // the innermost last
    int m_revision = 0;
};

} // namespace ambrelle
