#include "app/desktop/file_bytes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

#ifdef Q_OS_UNIX
#include <csignal>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#else
#include <atomic>
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
    /// A file is replaced where that changes nothing but its contents, else overwritten.
    void KeepsAccess()
    {
        // the owner may read and write, and so may the group or one more group
        const QByteArray list = QByteArray::fromHex("0200000001000600ffffffff04000400ffffffff"
                                                    "080006000900000010000600ffffffff20000000ffffffff");
        const QByteArray otherList = QByteArray(list).replace(22, 1, "\4");
        const auto owned = [&](uid_t owner, gid_t group) { return chown(qPrintable(File), owner, group) == 0; };
        const auto sets = [](const QString& path, const char* name, const QByteArray& value) {
            return setxattr(qPrintable(path), name, value, static_cast<size_t>(value.size()), 0) == 0;
        };
        const auto folderSets = [&] { return sets(Folder.path(), "system.posix_acl_default", list); };
        struct Row {
            const char* name;
            bool replaced;
            std::function<bool()> prepare; // false where this system or user cannot
        };
        for (const Row& row : {
                 Row{"private file", true, [&] { return chmod(qPrintable(File), 0600) == 0; }},
                 Row{"odd mode", false, [&] { return chmod(qPrintable(File), 01666) == 0; }},
                 Row{"colleague's file", false, [&] { return owned(0, Nobody); }},
                 Row{"group of the user", true, [&] { return owned(Nobody, Group); }},
                 Row{"group of others", false, [&] { return owned(Nobody, 3); }},
                 Row{"access list", false, [&] { return sets(File, "system.posix_acl_access", list); }},
                 Row{"folder's access list", false, folderSets},
                 Row{"another list than the folder's", false,
                     [&] { return folderSets() && sets(File, "system.posix_acl_access", otherList); }},
                 Row{"attribute", false, [&] { return sets(File, "user.origin", "a web page"); }},
                 Row{"empty attribute", false, [&] { return sets(File, "user.origin", ""); }},
                 Row{"second name", false, [&] { return link(qPrintable(File), qPrintable(File + '2')) == 0; }},
             }) {
            init();
            Protect(0777, 0666);
            if (!row.prepare()) {
                qInfo("left out: %s", row.name);
                continue;
            }
            const auto [access, inode] = Access();
            QVERIFY2(SaveAsUser(File, "new"), row.name);
            QCOMPARE(Contents(File), "new");
            QVERIFY2(Access().first == access, row.name);
            QVERIFY2((Access().second != inode) == row.replaced, row.name);
        }
    }

    void SavesUnderNamesAsLongAsTheyGet()
    {
        for (const int length : {248, 249, 255}) {
            const QString path = Folder.filePath(QString(length, 'n'));
            QVERIFY2(file_bytes::Save(path, Long) && file_bytes::Save(path, "new"), qPrintable(path));
            QCOMPARE(Contents(path), "new");
        }
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

    /// The disk has no space for the new contents. The user may write to the folder in the second case only.
    void LeavesTheEarlierFileWhereThereIsNoRoom()
    {
        for (const mode_t folder : {0555U, 0777U}) {
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
        Protect(0777, 0444);
        QVERIFY(!SaveAsUser(File, "newer"));
        QCOMPARE(Contents(File), "new");
        QVERIFY(mkfifo(qPrintable(File + '2'), 0666) == 0);
        QVERIFY(!file_bytes::Save(File + '2', "new"));
    }

private:
    static constexpr uid_t Nobody = 65534;
    static constexpr gid_t Group = 9; // Nobody's second

    /// Returns who may do what with the file, its links and attributes; and which file it is.
    std::pair<QByteArrayList, ino_t> Access() const { struct stat there { };
        stat(qPrintable(File), &there);
        QByteArrayList access;
        for (const auto number : {there.st_uid, there.st_gid, there.st_mode, static_cast<uid_t>(there.st_nlink)})
            access += QByteArray::number(number);
        for (const char* name : {"system.posix_acl_access", "user.origin"}) {
            QByteArray value(1000, 0);
            access += value.left(getxattr(qPrintable(File), name, value.data(), 1000) + 1);
        }
        return {access, there.st_ino};
    }

    void Protect(mode_t folder, mode_t file)
    {
        QVERIFY(geteuid() != 0 || chown(qPrintable(File), Nobody, Nobody) == 0);
        QVERIFY(chmod(qPrintable(Folder.path()), folder) == 0 && chmod(qPrintable(File), file) == 0);
    }

    /// Saves as an ordinary user, even if root runs the test: root ignores permissions.
    static bool SaveAsUser(const QString& path, const std::string& bytes)
    {
        const bool root =
            geteuid() == 0 && setgroups(1, &Group) == 0 && setegid(Nobody) == 0 && setresuid(Nobody, Nobody, 0) == 0;
        const bool saved = file_bytes::Save(path, bytes);
        return (!root || (setresuid(0, 0, 0) == 0 && setegid(0) == 0 && setgroups(0, nullptr) == 0)) && saved;
    }
#else
    /// A virus scanner may hold a file for a moment, an editor for longer; some let others read and write.
    void WaitsForAFileThatIsHeld()
    {
        for (const int sharing : {0, FILE_SHARE_READ | FILE_SHARE_WRITE})
            for (const DWORD milliseconds : {300UL, 5000UL}) {
                init();
                const bool free = sharing != 0 || milliseconds < 1000;
                auto letGo = Hold(File, sharing, milliseconds);
                QCOMPARE(file_bytes::Read(File, 10), free ? std::string("old") : std::string());
                letGo.wait();
                letGo = Hold(File, sharing, milliseconds);
                QCOMPARE(file_bytes::Save(File, "new"), free);
                letGo.wait();
                QCOMPARE(Contents(File), free ? "new" : "old");
                QCOMPARE(Folder.entryList(QDir::Files).size(), 1);
            }
    }

    /// Every second save is the first of its file.
    void LeavesNoNewFileThatIsHeld()
    {
        std::atomic<int> caught = 0;
        std::atomic<bool> enough = false;
        const auto scanner = std::async(std::launch::async, [&, folder = QDir(Folder.path())] {
            while (!enough)
                for (const QString& name : folder.entryList(QDir::Files)) {
                    if (name.endsWith(".pux"))
                        continue;
                    std::future<void> letGo;
                    do
                        letGo = Hold(folder.filePath(name), 0, 500);
                    while (!letGo.valid() && GetLastError() == ERROR_SHARING_VIOLATION);
                    caught += letGo.valid();
                }
        });
        int saves = 0;
        while (saves < 200 &&
               file_bytes::Save(Folder.filePath(QString("%1.pux").arg(saves / 2)), QByteArray::number(saves)))
            ++saves;
        enough = true;
        scanner.wait();
        QCOMPARE(saves, 200);
        qInfo("held: %d new files", caught.load());
        for (int i = 1; i < saves; i += 2)
            QCOMPARE(Contents(Folder.filePath(QString("%1.pux").arg(i / 2))), QByteArray::number(i));
        QTRY_COMPARE_WITH_TIMEOUT(Folder.entryList({"*.pux.*"}, QDir::Files).size(), 0, 10'000);
    }

private:
    /// Opens the file and closes it in another thread after a while. No thread if it cannot be opened.
    static std::future<void> Hold(const QString& path, int sharing, DWORD milliseconds)
    {
        const HANDLE held = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ,
                                        static_cast<DWORD>(sharing), nullptr, OPEN_EXISTING, 0, nullptr);
        if (held == INVALID_HANDLE_VALUE)
            return {};
        return std::async(std::launch::async, [=] { Sleep(milliseconds), CloseHandle(held); });
    }

#endif
    std::unique_ptr<QTemporaryDir> Disk;
    QDir Folder;
    QString File;
};

QTEST_APPLESS_MAIN(FileBytesTest)
#include "file_bytes_test.moc"
