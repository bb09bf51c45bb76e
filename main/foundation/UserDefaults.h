// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace ambrelle {

class SettingsFile;

/// A typed key-value store in one JSON file, of one thread. What a setter was given outlives the process, however that
/// ends, from the setter's return on, and a power cut after a second; no setter waits for the disk to flush, only the
/// store's end does, one second at most. Keys this version does not know survive. Reads give nothing when the key is
/// absent or holds another type: a string is not an integer, an integer is not a Boolean.
class UserDefaults {
public:
    /// Opens the store kept in `path`. A damaged file is moved aside under another name, a sentence about it goes to
    /// standard error, and the store starts empty.
    explicit UserDefaults(const QString& path);
    ~UserDefaults(); ///< what is not on the disk yet gets there, if it can within one second; else the next start sees
                     ///< to it
    /// The user's own store, `ambrelle/defaults.json` below the XDG configuration folder.
    static UserDefaults& shared();
    /// A store that lives in memory only.
    static UserDefaults temporary();
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

    bool contains(const QString& key) const { return m_values.contains(key); }
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

    /// While one lives, setters write nothing; what they set is stored as one when the last is gone.
    class Transaction {
    public:
        explicit Transaction(UserDefaults& defaults);
        ~Transaction();
        Q_DISABLE_COPY_MOVE(Transaction)

    private:
        UserDefaults& m_defaults;
    };

    /// Each setter gives false, and keeps the file as it was, when the disk refuses; the value holds for this run, and
    /// is written again by the next setter and every ten seconds. A number that is not finite, or a blob that is not
    /// UTF-8, is refused. A value equal to the stored one is not written.
    bool set(const QString& key, bool value);
    bool set(const QString& key, int value);
    bool set(const QString& key, double value);
    bool set(const QString& key, const QString& value);
    bool set(const QString& key, const QStringList& value);
    bool set(const QString& key, const QJsonObject& value);
    bool setData(const QString& key, const QByteArray& value);
    bool remove(const QString& key);
    /// Writes again what the disk refused; false when it still does.
    bool storeAgain();
    /// Called when the disk begins to refuse what setters are given; the one set last counts.
    void setRefused(std::function<void()> refused);

private:
    bool put(const QString& key, const QJsonValue& value);
    bool save();

    std::unique_ptr<SettingsFile> m_file; // none: in memory only
    QJsonObject m_values;
    int m_openTransactions = 0;
    bool m_unsaved = false; // what is stored lacks something of m_values
    bool m_refuses = false; // the disk did so last
    std::function<void()> m_refused;
};

} // namespace ambrelle
