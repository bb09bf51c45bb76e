// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace ambrelle {

/// A typed key-value store in one JSON file. Every write is on the disk, whole, before the call returns; keys this
/// version does not know survive. Reads give nothing when the key is absent or holds another type: a string is not an
/// integer, an integer is not a Boolean.
class UserDefaults {
public:
    /// Opens the store kept in `path`. A damaged file is moved aside under another name, a sentence about it goes to
    /// standard error, and the store starts empty.
    explicit UserDefaults(QString path);
    /// The user's own store, `ambrelle/defaults.json` below the XDG configuration folder.
    static UserDefaults& shared();
    /// A store that lives in memory only.
    static UserDefaults temporary();
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

    std::optional<bool> boolean(const QString& key) const;
    std::optional<int> integer(const QString& key) const;
    /// An integer counts as a real number; a Boolean does not.
    std::optional<double> real(const QString& key) const;
    std::optional<QString> string(const QString& key) const;
    /// Nothing unless every element is a string.
    std::optional<QStringList> strings(const QString& key) const;
    /// A map from text to JSON values.
    std::optional<QJsonObject> object(const QString& key) const;
    /// A blob: UTF-8 JSON text that another type encodes and decodes.
    std::optional<QByteArray> data(const QString& key) const;

    /// Each setter gives false, and keeps the file as it was, when the disk refuses; the value holds for this run, and
    /// the next setter tries to write it again. A number that is not finite, or a blob that is not UTF-8, is refused.
    /// A value equal to the stored one is not written.
    bool set(const QString& key, bool value);
    bool set(const QString& key, int value);
    bool set(const QString& key, double value);
    bool set(const QString& key, const QString& value);
    bool set(const QString& key, const QStringList& value);
    bool set(const QString& key, const QJsonObject& value);
    bool setData(const QString& key, const QByteArray& value);
    bool remove(const QString& key);

private:
    bool put(const QString& key, const QJsonValue& value);
    bool save();

    QString m_path; // empty: in memory only
    QJsonObject m_values;
    bool m_unsaved = false; // the file lacks something of m_values
    bool m_complained = false;
};

} // namespace ambrelle
