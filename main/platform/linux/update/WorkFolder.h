// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

namespace ambrelle {

/// The hidden folder beside a program's own in which it prepares another. It is this user's alone, and of one process
/// at a time: as long as an object of this class lives, others cannot open it.
class WorkFolder {
public:
    /// The folder for the program at `rootPath`. None: it is not there, is somebody else's, or somebody works in it.
    static std::unique_ptr<WorkFolder> open(const QString& rootPath);
    /// Makes it when missing.
    static std::unique_ptr<WorkFolder> make(const QString& rootPath);
    /// Whether anything is there. Costs one call of the system.
    static bool exists(const QString& rootPath);

    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const QString& path() const { return m_path; }
    QString journal() const { return journalOf(m_path); }
    static QString journalOf(const QString& path);
    /// Removes the file from the folder, for good when this returns.
    bool remove(const QString& path) const;
    /// Removes everything in the folder.
    void clear() const;
    /// Removes the folder itself, if it is empty.
    void removeIfEmpty() const;

private:
    WorkFolder(QString path, int descriptor);

    QString m_path;
    int m_descriptor;
};

} // namespace ambrelle
