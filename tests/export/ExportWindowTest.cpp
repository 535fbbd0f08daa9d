#include "reports/SpreadsheetFile.h"
#include "tests/export/ExportCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>

#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ExportWindow : public ExportCase {
protected:
    /// A file that was there before.
    void Write(const QString& name, const QByteArray& bytes)
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Read(const QString& name)
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    /// The window stands, the name is kept and has the keyboard.
    void ExpectStillThere()
    {
        Settle();
        ASSERT_NE(Windows().Find(u"frmExport"_s), nullptr);
        EXPECT_TRUE(Windows().Find(u"frmExport"_s)->Widget()->isVisible());
        EXPECT_EQ(FocusName(), u"txtFileName"_s);
    }
};

bool IsXls(const QByteArray& bytes)
{
    return bytes.startsWith("\xd0\xcf\x11\xe0");
}

bool IsXlsx(const QByteArray& bytes)
{
    return bytes.startsWith("PK");
}

/// No file of this process grows beyond so many bytes: what a full disk is to a writer, on every machine.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit m_before{};
};

/// A file system of its own in a folder; only the administrator can make one.
class Mounted {
public:
    Mounted(const QString& folder, const char* options, unsigned long flags = 0)
        : m_folder(QFile::encodeName(folder)),
          m_stands(QDir().mkpath(folder) && mount("none", m_folder, "tmpfs", flags, options) == 0)
    {}
    ~Mounted()
    {
        if (m_stands)
            umount2(m_folder, MNT_DETACH);
    }
    Mounted(const Mounted&) = delete;
    Mounted& operator=(const Mounted&) = delete;
    bool Stands() const { return m_stands; }

private:
    QByteArray m_folder;
    bool m_stands;
};

} // namespace

TEST_F(ExportWindow, AsksForAFileFirst)
{
    report->sheet.Clear(); // which would be told next
    OpenExport();
    boxes.Expect(u"请先选择文件存储路径！"_s, ExportTitle);
    ExportTo(u"   "_s);
    ExpectStillThere();
    EXPECT_TRUE(FilesInFolder().isEmpty());
}

TEST_F(ExportWindow, ExportsNoReportWithoutRows)
{
    report->sheet.Clear();
    report->isWhole = false; // which would be told next
    OpenExport();
    boxes.Expect(u"该报表没有具体内容，导出停止！"_s, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    ExpectStillThere();
    EXPECT_TRUE(FilesInFolder().isEmpty());
    EXPECT_EQ(TextOf(u"frmExport"_s, u"txtFileName"_s), Path(u"a.xls"_s));
}

TEST_F(ExportWindow, WithoutAReportThereIsNothingToExport)
{
    report->close();
    Settle();
    OpenExport();
    boxes.Expect(u"该报表没有具体内容，导出停止！"_s, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    ExpectStillThere();
}

TEST_F(ExportWindow, ExportsNoReportThatWasStopped)
{
    report->isWhole = false;
    OpenExport();
    boxes.Expect(u"该报表没有查完，内容不全，导出停止！请重新查询。"_s, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    ExpectStillThere();
    EXPECT_TRUE(FilesInFolder().isEmpty());
}

TEST_F(ExportWindow, EnterExportsAndTheWindowStaysForTheNextFile)
{
    OpenExport();
    TakeStatements();
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    ExpectStillThere();
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"b.xlsx"_s));
    ExpectStillThere();
    EXPECT_EQ(FilesInFolder(), (QStringList{u"a.xls"_s, u"b.xlsx"_s}));
    EXPECT_TRUE(IsXls(Read(u"a.xls"_s)));
    EXPECT_TRUE(IsXlsx(Read(u"b.xlsx"_s)));
    EXPECT_EQ(TakeStatements(), QStringList()) << "the list is read, not the database";
}

TEST_F(ExportWindow, AltSExportsAndEscapeCloses)
{
    OpenExport();
    Type(Path(u"a.xls"_s));
    boxes.Expect(ExportDone, ExportTitle);
    Press(Qt::Key_S, Qt::AltModifier);
    ExpectStillThere();
    EXPECT_EQ(FilesInFolder(), QStringList{u"a.xls"_s});
    Press(Qt::Key_Escape);
    EXPECT_EQ(Windows().Find(u"frmExport"_s), nullptr);
}

TEST_F(ExportWindow, AltCCloses)
{
    OpenExport();
    Type(Path(u"a.xls"_s));
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(Windows().Find(u"frmExport"_s), nullptr);
    EXPECT_TRUE(FilesInFolder().isEmpty());
}

TEST_F(ExportWindow, TheDialogOffersBothFormatsAndANameAndItsChoiceIsExported)
{
    OpenExport();
    boxes.ExpectFile(ExportFilter, Path(u"选的.xls"_s));
    Press(Qt::Key_F2);
    EXPECT_TRUE(boxes.LastFileQuestion().isSave);
    EXPECT_EQ(boxes.LastFileQuestion().start, QDir::homePath() + u"/销售明细表"_s);
    ExpectStillThere();
    EXPECT_EQ(TextOf(u"frmExport"_s, u"txtFileName"_s), Path(u"选的.xls"_s));
    EXPECT_TRUE(FilesInFolder().isEmpty());

    boxes.ExpectFile(ExportFilter, QString());
    Press(Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(boxes.LastFileQuestion().start, Path(u"选的.xls"_s));
    ExpectStillThere();
    EXPECT_EQ(TextOf(u"frmExport"_s, u"txtFileName"_s), Path(u"选的.xls"_s));

    boxes.Expect(ExportDone, ExportTitle);
    Press(Qt::Key_Return);
    EXPECT_EQ(FilesInFolder(), QStringList{u"选的.xls"_s});
}

TEST_F(ExportWindow, ANameWithoutAnEndingOfASpreadsheetGetsOne)
{
    OpenExport();
    for (const auto& [typed, made] :
         {std::pair{u"三月"_s, u"三月.xls"_s}, std::pair{u"3.9"_s, u"3.9.xls"_s},
          std::pair{u"B.XLS"_s, u"B.XLS"_s}, std::pair{u"C.Xlsx"_s, u"C.Xlsx"_s}}) {
        boxes.Expect(ExportDone, ExportTitle);
        ExportTo(Path(typed));
        EXPECT_EQ(TextOf(u"frmExport"_s, u"txtFileName"_s), Path(made));
        EXPECT_EQ(IsXlsx(Read(made)), made.endsWith(u'x')) << made.toStdString();
        EXPECT_EQ(IsXls(Read(made)), !made.endsWith(u'x')) << made.toStdString();
    }
    EXPECT_EQ(FilesInFolder().size(), 4);
}

TEST_F(ExportWindow, ANameAloneIsInTheUsersOwnFolder)
{
    EXPECT_EQ(SpreadsheetPath(u"a"_s), QDir::homePath() + u"/a.xls"_s);
    EXPECT_EQ(SpreadsheetPath(u"b.xlsx"_s), QDir::homePath() + u"/b.xlsx"_s);
}

TEST_F(ExportWindow, AnExistingFileIsAskedAboutAndNoEndsTheExport)
{
    Write(u"a.xls"_s, "old");
    OpenExport();
    boxes.ExpectDestroying(u"文件“a.xls”已存在，是否覆盖？"_s, false, ExportTitle);
    ExportTo(Path(u"a"_s)); // the ending is the program's
    ExpectStillThere();
    EXPECT_EQ(Read(u"a.xls"_s), "old");
    EXPECT_EQ(FilesInFolder(), QStringList{u"a.xls"_s});
}

TEST_F(ExportWindow, AnExistingFileIsReplacedOnYesAndKeepsWhoMayReadIt)
{
    Write(u"a.xls"_s, "old");
    const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QFile::setPermissions(Path(u"a.xls"_s), own);
    OpenExport();
    boxes.ExpectDestroying(u"文件“a.xls”已存在，是否覆盖？"_s, true, ExportTitle);
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    EXPECT_TRUE(IsXls(Read(u"a.xls"_s)));
    EXPECT_EQ(QFile::permissions(Path(u"a.xls"_s)), own);
    EXPECT_EQ(FilesInFolder(), QStringList{u"a.xls"_s});
}

TEST_F(ExportWindow, ANewFileMayBeReadAsAnyFileOfTheUser)
{
    Write(u"other"_s, "x");
    OpenExport();
    for (const QString& name : {u"a.xls"_s, u"a.xlsx"_s}) {
        boxes.Expect(ExportDone, ExportTitle);
        ExportTo(Path(name));
        EXPECT_EQ(QFile::permissions(Path(name)), QFile::permissions(Path(u"other"_s)));
    }
}

TEST_F(ExportWindow, AFileThatAnOfficeProgramHasOpenIsLeftAlone)
{
    Write(u"a.xls"_s, "old");
    Write(u".~lock.a.xls#"_s, "someone");
    OpenExport();
    boxes.Expect(u"文件正被别的程序打开，请先关闭它，或者换一个文件名！"_s, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    ExpectStillThere();
    EXPECT_EQ(Read(u"a.xls"_s), "old");
}

TEST_F(ExportWindow, AFolderIsNoFileName)
{
    OpenExport();
    boxes.Expect(u"这是一个文件夹，请在后面写上文件名！"_s, ExportTitle);
    ExportTo(Folder());
    ExpectStillThere();
    EXPECT_TRUE(FilesInFolder().isEmpty());
}

TEST_F(ExportWindow, AFolderThatIsNotThereIsTold)
{
    OpenExport();
    boxes.Expect(u"文件夹不存在，导出停止！"_s, ExportTitle);
    ExportTo(Path(u"gone/a.xls"_s));
    ExpectStillThere();
    boxes.Expect(u"文件名太长，导出停止！"_s, ExportTitle);
    ExportTo(Path(QString(300, u'a') + u".xls"_s));
    ExpectStillThere();
    EXPECT_TRUE(FilesInFolder().isEmpty());
}

TEST_F(ExportWindow, AFolderThatTakesNoFilesIsTold)
{
    const Mounted readOnly(Path(u"locked"_s), "size=64k", MS_RDONLY);
    if (!readOnly.Stands()) {
        QDir().mkpath(Path(u"locked"_s));
        QFile::setPermissions(Path(u"locked"_s), QFile::ReadOwner | QFile::ExeOwner);
        if (getuid() == 0)
            GTEST_SKIP() << "nothing here keeps the administrator from writing";
    }
    OpenExport();
    for (const QString& name : {u"locked/a.xls"_s, u"locked/a.xlsx"_s}) {
        boxes.Expect(u"文件或文件夹不允许写入，导出停止！"_s, ExportTitle);
        ExportTo(Path(name));
        ExpectStillThere();
    }
}

TEST_F(ExportWindow, AFullDiskLeavesTheOldFileAsItWas)
{
    report->sheet = LargeSheet(3000, 18);
    OpenExport();
    for (const QString& name : {u"a.xls"_s, u"a.xlsx"_s}) {
        Write(name, "old");
        boxes.ExpectDestroying(u"文件“%1”已存在，是否覆盖？"_s.arg(name), true, ExportTitle);
        boxes.Expect(u"磁盘已满，导出停止！"_s, ExportTitle);
        {
            const SmallDisk disk(20000);
            ExportTo(Path(name));
        }
        ExpectStillThere();
        EXPECT_EQ(Read(name), "old");
    }
    EXPECT_EQ(FilesInFolder(), (QStringList{u"a.xls"_s, u"a.xlsx"_s})) << "something was left behind";
}

TEST_F(ExportWindow, AFullDiskLeavesANewFileEmpty)
{
    report->sheet = LargeSheet(3000, 18);
    OpenExport();
    for (const QString& name : {u"a.xls"_s, u"a.xlsx"_s}) {
        boxes.Expect(u"磁盘已满，导出停止！"_s, ExportTitle);
        {
            const SmallDisk disk(20000);
            ExportTo(Path(name));
        }
        ExpectStillThere();
        EXPECT_EQ(ReadBack(Path(name)).section(u'\n', 0, 0), u"sheets 1"_s);
        EXPECT_FALSE(ReadBack(Path(name)).contains(u':')) << "a cell has a text";
    }
}

TEST_F(ExportWindow, ADiskOfAFewKilobytesIsFull)
{
    report->sheet = LargeSheet(3000, 18);
    const Mounted small(Path(u"disk"_s), "size=16k");
    if (!small.Stands())
        GTEST_SKIP() << "only the administrator can make a small disk";
    OpenExport();
    for (const QString& name : {u"disk/a.xls"_s, u"disk/b.xlsx"_s}) {
        boxes.Expect(u"磁盘已满，导出停止！"_s, ExportTitle);
        ExportTo(Path(name));
        ExpectStillThere();
    }
}

TEST_F(ExportWindow, AFullFolderForTemporaryFilesLeavesNoFileThatIsCutOff)
{
    report->sheet = LargeSheet(3000, 18);
    const Mounted small(Path(u"temporary"_s), "size=100k");
    if (!small.Stands())
        GTEST_SKIP() << "only the administrator can make a small disk";
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(Path(u"temporary"_s)));
    OpenExport();
    boxes.Expect(u"磁盘已满，导出停止！"_s, ExportTitle);
    ExportTo(Path(u"a.xlsx"_s));
    if (before.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", before);
    ExpectStillThere();
}

TEST_F(ExportWindow, MoreThan26ColumnsFailAfterTheFileExists)
{
    report->sheet = LargeSheet(2, 27);
    OpenExport();
    for (const QString& name : {u"a.xls"_s, u"a.xlsx"_s}) {
        boxes.Expect(u"报表有27栏，最多只能导出26栏，导出停止！"_s, ExportTitle);
        ExportTo(Path(name));
        ExpectStillThere();
        EXPECT_FALSE(ReadBack(Path(name)).contains(u':')) << "a cell has a text";
    }
    EXPECT_EQ(FilesInFolder(), (QStringList{u"a.xls"_s, u"a.xlsx"_s}));

    report->sheet = LargeSheet(2, 26);
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"b.xls"_s));
    EXPECT_TRUE(ReadBack(Path(u"b.xls"_s)).contains(u"\nZ6 10 border @: 2.26\n"));
}

TEST_F(ExportWindow, MoreRowsThanAnOldSpreadsheetHoldsAreToldWithTheWayOut)
{
    report->sheet = LargeSheet(65533, 1);
    OpenExport();
    boxes.Expect(u"xls文件最多65536行，该报表连表头共65537行，导出停止！请改存为xlsx文件。"_s, ExportTitle);
    ExportTo(Path(u"a.xls"_s));
    ExpectStillThere();
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"a.xlsx"_s));
    EXPECT_TRUE(ReadBack(Path(u"a.xlsx"_s)).contains(u"\nA65537 10 border @: 65533.1\n"));
}
