#include "core/base/IniFile.h"
#include "core/base/ProgramFiles.h"
#include "core/base/RunTimeError.h"
#include "tests/support/TestText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class IniFile : public ::testing::Test {
protected:
    void TearDown() override { SetProgramDirectory(QString()); }

    QString Path(const QString& name = u"Config.ini"_s) const { return m_folder.filePath(name); }

    void Put(const QByteArray& bytes, const QString& name = u"Config.ini"_s)
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray Bytes() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString Read(const QString& section, const QString& key, const QString& fallback = QString()) const
    {
        return ReadIniValue(Path(), section, key, fallback);
    }

    QTemporaryDir m_folder;
};

const QByteArray Gb18030Name("\xB9\xDC\xC0\xED\xD4\xB1"); // 管理员

} // namespace

TEST_F(IniFile, SectionsAndKeysIgnoreCaseAndBlanksAroundThemDoNotCount)
{
    Put("  [ define ]  \n  ACCNUM  =  2  \n[Acc1]\nAccName=A\n");
    EXPECT_EQ(Read(u"Define"_s, u"AccNum"_s), u"2"_s);
    EXPECT_EQ(Read(u"ACC1"_s, u"accname"_s), u"A"_s);
}

TEST_F(IniFile, TheFirstSectionAndTheFirstKeyCount)
{
    Put("[A]\nx=1\nx=2\n[B]\ny=3\n[A]\nx=4\nz=5\n");
    EXPECT_EQ(Read(u"A"_s, u"x"_s), u"1"_s);
    EXPECT_EQ(Read(u"A"_s, u"z"_s, u"none"_s), u"none"_s);
    EXPECT_EQ(Read(u"B"_s, u"y"_s), u"3"_s);
}

TEST_F(IniFile, AKeyIsNotFoundInAnotherSection)
{
    Put("x=0\n[A]\nx=1\n[B]\n");
    EXPECT_EQ(Read(u"B"_s, u"x"_s, u"none"_s), u"none"_s);
    EXPECT_EQ(Read(u""_s, u"x"_s, u"none"_s), u"none"_s);
}

TEST_F(IniFile, ASemicolonIsACommentAtTheStartOfALineOnly)
{
    Put("[MYSQL]\n;ConnStr=old\n ; ConnStr = older\nConnStr=DRIVER={x};SERVER=a;PWD=b%20c\\d,e;\n");
    EXPECT_EQ(Read(u"MYSQL"_s, u"ConnStr"_s), u"DRIVER={x};SERVER=a;PWD=b%20c\\d,e;"_s);
    EXPECT_EQ(Read(u"MYSQL"_s, u";ConnStr"_s, u"none"_s), u"none"_s);
}

TEST_F(IniFile, OnePairOfEnclosingQuotesIsRemoved)
{
    Put("[A]\na=\"x y \"\nb='x'\nc=\"\"x\"\"\nd=\"x\ne=\"\nf=\"x'\ng=a\"b\n");
    EXPECT_EQ(Read(u"A"_s, u"a"_s), u"x y "_s);
    EXPECT_EQ(Read(u"A"_s, u"b"_s), u"x"_s);
    EXPECT_EQ(Read(u"A"_s, u"c"_s), u"\"x\""_s);
    EXPECT_EQ(Read(u"A"_s, u"d"_s), u"\"x"_s);
    EXPECT_EQ(Read(u"A"_s, u"e"_s), u"\""_s);
    EXPECT_EQ(Read(u"A"_s, u"f"_s), u"\"x'"_s);
    EXPECT_EQ(Read(u"A"_s, u"g"_s), u"a\"b"_s);
}

TEST_F(IniFile, AnEmptyValueIsEmptyAndAMissingOneIsTheFallback)
{
    Put("[A]\nx=\nnonsense\n=5\n");
    EXPECT_EQ(Read(u"A"_s, u"x"_s, u"fallback"_s), QString());
    EXPECT_EQ(Read(u"A"_s, u"y"_s, u"fallback"_s), u"fallback"_s);
    EXPECT_EQ(Read(u"A"_s, u"nonsense"_s, u"fallback"_s), u"fallback"_s);
    EXPECT_EQ(Read(u"B"_s, u"x"_s, u"fallback"_s), u"fallback"_s);
    EXPECT_EQ(ReadIniValue(Path(u"absent.ini"_s), u"A"_s, u"x"_s, u"fallback"_s), u"fallback"_s);
    EXPECT_EQ(ReadIniValue(m_folder.path(), u"A"_s, u"x"_s, u"fallback"_s), u"fallback"_s);

    // There, and yet not to be read: neither empty nor missing.
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, Path(u"closed.ini"_s)));
    for (const auto& use :
         {std::function<void()>([this] { ReadIniValue(Path(u"closed.ini"_s), u"A"_s, u"x"_s); }),
          std::function<void()>([this] { WriteIniValue(Path(u"closed.ini"_s), u"A"_s, u"x"_s, u"1"_s); }),
          std::function<void()>([this] { KeepOldIni(Path(u"closed.ini"_s)); })}) {
        try {
            use();
            ADD_FAILURE() << "no exception";
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.Description().startsWith(u"无法读取文件："_s + Path(u"closed.ini"_s)))
                << error.what();
        }
    }
    EXPECT_TRUE(QFileInfo(Path(u"closed.ini"_s)).isSymLink());
    EXPECT_EQ(Read(u"A"_s, u"y"_s), QString());
}

TEST_F(IniFile, AValueEndsAtItsTwoHundredAndFiftyFifthCharacter)
{
    const QString longValue = QString(300, u'仓');
    Put("[A]\nx=" + longValue.toUtf8() + "\n");
    EXPECT_EQ(Read(u"A"_s, u"x"_s), QString(255, u'仓'));
}

TEST_F(IniFile, Utf8WithAndWithoutMarkAndGb18030AreRead)
{
    const QByteArray lines = "[Define]\nUserName=管理员\n";
    Put(lines);
    EXPECT_EQ(Read(u"Define"_s, u"UserName"_s), u"管理员"_s);
    Put("\xEF\xBB\xBF" + lines);
    EXPECT_EQ(Read(u"Define"_s, u"UserName"_s), u"管理员"_s);
    Put("[Define]\nUserName=" + Gb18030Name + "\n");
    EXPECT_EQ(Read(u"Define"_s, u"UserName"_s), u"管理员"_s);
}

TEST_F(IniFile, WritingKeepsEveryOtherLineItsOrderAndTheComments)
{
    Put("; head\n\n[Define]\nAccNum=2\n; the last one\nUserName=a\n\n[Acc1]\nAccName=A\n");
    WriteIniValue(Path(), u"define"_s, u"UserName"_s, u"张三"_s);
    EXPECT_EQ(Bytes(), QByteArray("; head\n\n[Define]\nAccNum=2\n; the last one\nUserName=张三\n\n[Acc1]\n"
                                  "AccName=A\n"));
}

TEST_F(IniFile, ANewKeyGoesToTheEndOfItsSectionAndANewSectionToTheEndOfTheFile)
{
    Put("[Define]\nAccNum=2\n\n[Acc1]\nAccName=A\n");
    WriteIniValue(Path(), u"Define"_s, u"UserName"_s, u"a"_s);
    WriteIniValue(Path(), u"Acc2"_s, u"AccName"_s, u"B"_s);
    EXPECT_EQ(Bytes(),
              QByteArray("[Define]\nAccNum=2\nUserName=a\n\n[Acc1]\nAccName=A\n[Acc2]\nAccName=B\n"));
}

TEST_F(IniFile, AMissingFileIsCreatedInUtf8)
{
    WriteIniValue(Path(), u"Define"_s, u"UserName"_s, u"管理员"_s);
    EXPECT_EQ(Bytes(), QByteArray("[Define]\nUserName=管理员\n"));
}

TEST_F(IniFile, AFileKeepsItsEncodingAndItsLineEnds)
{
    Put("\xEF\xBB\xBF[Define]\r\nAccNum=2\r\nUserName=\r\n");
    WriteIniValue(Path(), u"Define"_s, u"UserName"_s, u"管理员"_s);
    EXPECT_EQ(Bytes(), QByteArray("\xEF\xBB\xBF[Define]\r\nAccNum=2\r\nUserName=管理员\r\n"));

    Put("[Define]\r\nUserName=\r\n[Acc1]\r\nAccName=" + Gb18030Name + "\r\n");
    WriteIniValue(Path(), u"Define"_s, u"UserName"_s, u"管理员"_s);
    EXPECT_EQ(Bytes(),
              "[Define]\r\nUserName=" + Gb18030Name + "\r\n[Acc1]\r\nAccName=" + Gb18030Name + "\r\n");
}

TEST_F(IniFile, LinesThatNobodyCanReadAreKeptByteForByte)
{
    const QByteArray strange("; \xFF\xFF broken\n");
    Put(strange + "[Define]\nUserName=\n");
    EXPECT_EQ(Read(u"Define"_s, u"UserName"_s, u"none"_s), QString());
    WriteIniValue(Path(), u"Define"_s, u"UserName"_s, u"管理员"_s);
    EXPECT_EQ(Bytes(), strange + "[Define]\nUserName=管理员\n");
    EXPECT_EQ(Bytes().left(strange.size()), strange);
}

TEST_F(IniFile, ALineBreakInAValueStartsNoLineOfItsOwn)
{
    Put("[Pic]\nFileName=\nPicStatus=0\n");
    WriteIniValue(Path(), u"Pic"_s, u"FileName"_s, u"a\r\nPicStatus=1\n[X]"_s);
    EXPECT_EQ(Bytes(), QByteArray("[Pic]\nFileName=a  PicStatus=1 [X]\nPicStatus=0\n"));
}

TEST_F(IniFile, AFileThatCannotBeWrittenIsToldWithoutQuotes)
{
    try {
        WriteIniValue(Path(u"no'such/Config.ini"_s), u"A"_s, u"x"_s, u"1"_s);
        ADD_FAILURE() << "no exception";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Description().startsWith(u"无法写入文件："_s)) << error.what();
        EXPECT_FALSE(error.Description().contains(u'\''));
    }
    QDir(m_folder.path()).mkdir(u"Config.ini"_s);
    EXPECT_THROW(WriteIniValue(Path(), u"A"_s, u"x"_s, u"1"_s), RunTimeError);
}

TEST_F(IniFile, AProgramPathTurnsBackslashesAndLooksPastTheCaseOfNames)
{
    SetProgramDirectory(m_folder.path());
    QDir(m_folder.path()).mkpath(u"Data"_s);
    Put("x", u"Data/Data.ini"_s);
    EXPECT_EQ(ProgramPath(u"\\Data\\Data.ini"_s), m_folder.path() + u"/Data/Data.ini"_s);
    EXPECT_EQ(ProgramPath(u"\\DATA\\data.INI"_s), m_folder.path() + u"/Data/Data.ini"_s);
    EXPECT_EQ(ProgramPath(u"Data/Data.ini"_s), m_folder.path() + u"/Data/Data.ini"_s);
    EXPECT_EQ(ProgramPath(u"\\Data\\Other.ini"_s), m_folder.path() + u"/Data/Other.ini"_s);
    Put("y", u"Data/data.ini"_s);
    EXPECT_EQ(ProgramPath(u"\\Data\\data.ini"_s), m_folder.path() + u"/Data/data.ini"_s)
        << "the exact name goes first";
}

TEST_F(IniFile, AFileExistsWhereAFileStandsAndNotWhereAFolderDoes)
{
    SetProgramDirectory(m_folder.path());
    Put("x");
    EXPECT_TRUE(FileExists(ProgramPath(u"\\Config.ini"_s)));
    EXPECT_FALSE(FileExists(ProgramPath(u"\\Other.ini"_s)));
    EXPECT_FALSE(FileExists(ProgramPath(QString()))) << "an empty ConnFile names the program folder";
    EXPECT_FALSE(FileExists(m_folder.path()));
    EXPECT_FALSE(FileExists(QString()));
}
