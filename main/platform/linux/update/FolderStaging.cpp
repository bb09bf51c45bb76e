// SPDX-License-Identifier: MIT

#include "platform/linux/update/FolderStaging.h"

#include "foundation/Json.h"
#include "platform/linux/update/BareProcess.h"
#include "platform/linux/update/FolderExchange.h"
#include "platform/linux/update/FolderJournal.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <chrono>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr mode_t forUsAlone = 0700;
constexpr mode_t permissions = 0777;
constexpr std::chrono::milliseconds unpackingTime = 120s;
constexpr std::chrono::milliseconds startingTime = 10s;
constexpr int otherReleaseStatus = 3; // of the helper

/// The path of a new folder; empty when it cannot be made.
QString freshFolder(const QString& parent)
{
    QString path = parent + u"/Ambrelle-update-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    return ::mkdir(QFile::encodeName(path).constData(), forUsAlone) == 0 ? path : QString();
}

int namelessFile(const QString& folder)
{
    const QByteArray place = QFile::encodeName(folder);
    const int descriptor = ::open(place.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0)
        return descriptor;
    // Not every file system has files without a name from the start.
    QByteArray name = place + "/archive-XXXXXX";
    const int named = ::mkostemp(name.data(), O_CLOEXEC);
    if (named >= 0)
        ::unlink(name.constData());
    return named;
}

/// A few bytes that another process can read at path().
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray& bytes)
        : m_descriptor(::memfd_create("signature", MFD_CLOEXEC))
        , m_isWhole(m_descriptor >= 0
              && ::write(m_descriptor, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size())
    {
    }
    ~MemoryFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    bool isWhole() const { return m_isWhole; }
    QString path() const { return u"/proc/%1/fd/%2"_s.arg(::getpid()).arg(m_descriptor); }

private:
    int m_descriptor;
    bool m_isWhole;
};

/// The newer program is as open to others as the one it replaces.
bool takePermissions(const QString& from, const QString& to)
{
    struct stat status { };
    return ::stat(QFile::encodeName(from).constData(), &status) == 0
        && ::chmod(QFile::encodeName(to).constData(), status.st_mode & permissions) == 0;
}

} // namespace

FolderStaging::FolderStaging(ProgramRoot root, std::unique_ptr<WorkFolder> work, QString folder)
    : m_root(std::move(root))
    , m_work(std::move(work))
    , m_folder(std::move(folder))
{
}

FolderStaging::~FolderStaging()
{
    if (m_archive >= 0)
        ::close(m_archive);
    if (m_isKept)
        return;
    QDir(m_folder).removeRecursively();
    if (m_work)
        m_work->removeIfEmpty();
}

std::unique_ptr<FolderStaging> FolderStaging::beside(const ProgramRoot& root, std::unique_ptr<WorkFolder> work)
{
    const QString folder = freshFolder(work->path());
    if (folder.isEmpty()) {
        work->removeIfEmpty();
        return nullptr;
    }
    return std::unique_ptr<FolderStaging>(new FolderStaging(root, std::move(work), folder));
}

std::unique_ptr<FolderStaging> FolderStaging::apart(const ProgramRoot& root)
{
    const QString folder = freshFolder(QDir::tempPath());
    return folder.isEmpty() ? nullptr : std::unique_ptr<FolderStaging>(new FolderStaging(root, nullptr, folder));
}

int FolderStaging::archive()
{
    if (m_archive >= 0)
        ::close(m_archive);
    // Not in the folder itself, which has to be empty: some file systems show a file without a name under another one.
    m_archive = namelessFile(m_work ? m_work->path() : QDir::tempPath());
    return m_archive;
}

StagedProgram::Opened FolderStaging::open(const Seal& seal, const std::stop_token& stop)
{
    const MemoryFile signature(seal.signature);
    if (m_archive < 0 || !signature.isWhole())
        return Opened::refused;
    const BareProcess helper{.program = m_root.helper(),
        .arguments = QStringList{m_folder, signature.path(), seal.comment} + seal.keys,
        .input = m_archive,
        .patience = unpackingTime};
    const std::optional<BareProcess::Result> result = helper.run(stop);
    if (result && result->status == otherReleaseStatus)
        return Opened::otherRelease;
    return result && result->status == EXIT_SUCCESS ? Opened::done : Opened::refused;
}

/// The first folder that looks like the program; empty when none does.
QString FolderStaging::bundle() const
{
    const QDir place(m_folder);
    for (const QString& name : place.entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::Name)) {
        if (QString candidate = place.filePath(name); holdsProgram(candidate))
            return candidate;
    }
    return {};
}

std::optional<StagedProgram::Identity> FolderStaging::identity() const
{
    const QString program = bundle();
    if (program.isEmpty())
        return std::nullopt;
    const std::optional<QJsonObject> information = informationOf(program);
    if (!information)
        return std::nullopt;
    return Identity{.identifier = information->value("identifier"_L1).toString(),
        .version = information->value("version"_L1).toString()};
}

bool FolderStaging::starts(const QString& version, const std::stop_token& stop)
{
    const QString program = bundle();
    if (program.isEmpty())
        return false;
    const BareProcess trial{.program = programFile(program), .arguments = {u"--version"_s}, .patience = startingTime};
    const std::optional<BareProcess::Result> result = trial.run(stop);
    return result && result->status == EXIT_SUCCESS && result->output == "Ambrelle " + version.toUtf8() + '\n';
}

bool FolderStaging::exchange(const QString& from, const QString& to)
{
    const QString program = bundle();
    if (!m_work || m_isKept || from == to || !m_root.isUnchanged() || !isReplaceable(m_root.path) || program.isEmpty()
        || !isReplaceable(program) || !takePermissions(m_root.path, program))
        return false;
    const QString copy = QDir(m_work->path()).relativeFilePath(program);
    const FolderJournal journal{.from = from, .to = to, .copy = copy};
    if (journal.write(*m_work) && exchangeFolders(m_root.path, program))
        m_isKept = true;
    else
        FolderJournal::remove(*m_work);
    return m_isKept;
}

} // namespace ambrelle
