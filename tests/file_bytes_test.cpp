#include "app/desktop/file_bytes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <future>
#include <windows.h>
#endif

namespace {

const std::string Long(100'000, 'n');

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "none";
}

} // namespace

class FileBytesTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        Disk = std::make_unique<QTemporaryDir>();
        Folder = QDir(Disk->path());
        File = Folder.filePath(QString::fromUtf8("\u00C4pfel & \u4E2D.pux"));
        QFile file(File);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    }

    void SavesAndReads()
    {
        QVERIFY(file_bytes::Save(File, Long));
        QCOMPARE(file_bytes::Read(File, 200'000), Long);
        QCOMPARE(file_bytes::Read(File, 3), std::string("nnn"));
        QVERIFY(file_bytes::Save(File, "short"));
        QCOMPARE(Contents(File), "short");
        QVERIFY(file_bytes::Save(Folder.filePath("new.pux"), "new"));
        QCOMPARE(Folder.entryList(QDir::Files).size(), 2);
    }

    void TouchesRegularFilesOnly()
    {
        for (const QString& path : {Folder.path(), Folder.filePath("missing/x.pux"), QString("/dev/null"), QString()})
            QVERIFY2(!file_bytes::Save(path, "new"), qPrintable(path));
        for (const QString& path : {Folder.path(), Folder.filePath("missing.pux"), QString("/dev/zero"), QString()})
            QCOMPARE(file_bytes::Read(path, 10), std::string());
        QCOMPARE(Folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
    }

#ifdef Q_OS_UNIX // on Windows, Qt does not report the real permissions and links
    void KeepsPermissions()
    {
        QFile::setPermissions(File, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(file_bytes::Save(File, "new"));
        QVERIFY(!(QFile::permissions(File) & QFile::ReadGroup));
    }

    void FollowsLinks()
    {
        const QStringList links{"file.lnk", "chain.lnk", "nowhere.lnk"};
        const QStringList targets{File, "file.lnk", "new.pux"};
        for (int i = 0; i < links.size(); ++i)
            QVERIFY(QFile::link(targets[i], Folder.filePath(links[i])));
        QVERIFY(file_bytes::Save(Folder.filePath("chain.lnk"), "new"));
        QCOMPARE(Contents(File), "new");
        QVERIFY(file_bytes::Save(Folder.filePath("nowhere.lnk"), "new"));
        QCOMPARE(Contents(Folder.filePath("new.pux")), "new");
        for (const QString& link : links)
            QVERIFY(QFileInfo(Folder.filePath(link)).isSymLink());
    }

    /// The disk has no space for the new contents. The user may write to the folder in the first case only.
    void LeavesTheEarlierFileWhereThereIsNoRoom()
    {
        for (const mode_t folder : {0777U, 0555U}) {
            Protect(folder, 0666);
            rlimit room{};
            getrlimit(RLIMIT_FSIZE, &room);
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit tight{10, room.rlim_max};
            setrlimit(RLIMIT_FSIZE, &tight);
            const bool saved = SaveAsUser(File, Long) || SaveAsUser(File, "a few bytes");
            setrlimit(RLIMIT_FSIZE, &room);
            QVERIFY(!saved);
            QCOMPARE(Contents(File), "old");
            QCOMPARE(Folder.entryList(QDir::Files).size(), 1);
        }
    }

    void KeepsToWhatMayBeWritten()
    {
        Protect(0555, 0666);
        QVERIFY(SaveAsUser(File, "newer") && SaveAsUser(File, "new")); // writes in place, and cuts the file
        QVERIFY(!SaveAsUser(Folder.filePath("new.pux"), "new"));
        QCOMPARE(Contents(File), "new");
        Protect(0777, 0444);
        QVERIFY(!SaveAsUser(File, "newer"));
        QCOMPARE(Contents(File), "new");
    }

private:
    void Protect(mode_t folder, mode_t file)
    {
        QVERIFY(chmod(qPrintable(Folder.path()), folder) == 0 && chmod(qPrintable(File), file) == 0);
    }

    /// Saves as an ordinary user, even if root runs the test: root ignores permissions.
    static bool SaveAsUser(const QString& path, const std::string& bytes)
    {
        constexpr uid_t Nobody = 65534;
        const bool root = geteuid() == 0 && setresuid(Nobody, Nobody, 0) == 0;
        const bool saved = file_bytes::Save(path, bytes);
        return (!root || setresuid(0, 0, 0) == 0) && saved;
    }
#else
    /// A virus scanner may hold the file for a moment, an editor for longer.
    void WaitsForAFileThatIsHeld()
    {
        for (const DWORD milliseconds : {300UL, 5000UL}) {
            const HANDLE held = CreateFileW(reinterpret_cast<const wchar_t*>(File.utf16()), GENERIC_READ, 0, nullptr,
                                            OPEN_EXISTING, 0, nullptr);
            QVERIFY(held != INVALID_HANDLE_VALUE);
            const auto letGo = std::async(std::launch::async, [=] { Sleep(milliseconds), CloseHandle(held); });
            QCOMPARE(file_bytes::Save(File, milliseconds < 1000 ? "new" : "newer"), milliseconds < 1000);
            letGo.wait();
            QCOMPARE(Contents(File), "new");
            QCOMPARE(Folder.entryList(QDir::Files).size(), 1);
        }
    }

private:
#endif
    std::unique_ptr<QTemporaryDir> Disk;
    QDir Folder;
    QString File;
};

QTEST_APPLESS_MAIN(FileBytesTest)
#include "file_bytes_test.moc"
