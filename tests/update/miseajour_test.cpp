#include "core/buildsettings.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "update/miseajour.h"
#include "update/profilefile.h"
#include "update/updatenetwork.h"

#include <QSignalSpy>
#include <optional>

namespace {

/// Delivers what it is told to, or nothing.
class ScriptedNetwork final : public UpdateNetwork
{
public:
    bool connected = true;
    std::optional<QByteArray> content;
    QStringList addresses;
    std::function<void()> whileDownloading;

    bool isConnected() const override { return connected; }
    void download(const QString &address, const QString &path) override
    {
        addresses << address;
        if (whileDownloading)
            whileDownloading();
        if (content && !QFileInfo(path).isDir())
            writeFile(path, *content);
    }
};

QByteArray published(const QByteArray &version, const QByteArray &url = "https://www.example.org/get")
{
    return "[ALEMBRA]\r\nVersion=" + version + "\r\nURL=" + url + "\r\n";
}

} // namespace

class MiseAjourTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_network = std::make_unique<ScriptedNetwork>();
        m_updates = std::make_unique<MiseAjour>(*m_desktop, *m_network, m_folder->path());
        m_updates->setAdresse("https://www.example.org/versions_fr.ini");
        m_updates->setLogiciel("ALEMBRA");
        m_updates->setVersion("1.1.0");
    }

    void outcomeByVersion()
    {
        using Content = std::optional<QByteArray>;
        enum { Failed, UpToDate, Newer };
        const std::pair<Content, int> rows[] = {
            {published("1.1.1"), Newer},
            {published("1.10.0"), Newer}, // more digits
            {published("3.2767"), Newer}, // the highest number
            {published("1.1.0"), UpToDate},
            {published("110"), UpToDate},
            {published("1.0.9"), UpToDate},
            {published("1.2"), UpToDate}, // fewer digits
            {Content(), Failed},
            {"", Failed},
            {"[OTHER]\nVersion=9.9.9\n", Failed},
            {"[ALEMBRA]\nURL=https://www.example.org\n", Failed},
            {published("1.2 beta"), Failed},
            {published("+2.0"), Failed},
            {published(".."), Failed},
            {published("3.2768"), Failed}, // above 16 bits
            {published(QByteArray(300, '9')), Failed},
            {"<html>[ALEMBRA]</html>", Failed},
        };
        for (const auto &[content, outcome] : rows) {
            init();
            m_network->content = content;
            m_updates->Verifier();
            const QString version = content.value_or("").mid(19).split('\r').first();
            const QPair<QString, int> boxes[] = {
                {failed(), 48},
                {"There is no updates for Alembra. Your version is up-to-date.", 64},
                {"The version of Alembra you are using is 1.1.0\n\nA more recent version is available, which "
                 "is version " +
                     version + "\n\nWould you like to download this new version?",
                 36}};
            QCOMPARE(m_desktop->boxes, Boxes{boxes[outcome]});
            QCOMPARE(m_network->addresses, QStringList{"https://www.example.org/versions_fr.ini"});
            QVERIFY(!QFile::exists(localCopy()));
            QVERIFY(m_desktop->targets.isEmpty());
        }
    }

    void withoutConnectionNothingIsFetched()
    {
        m_network->connected = false;
        m_network->content = published("9.9.9");
        m_updates->Verifier();
        QCOMPARE(m_desktop->boxes,
                 (Boxes{{"Impossible to check for updates, please verify your internet connexion.", 48}}));
        QVERIFY(m_network->addresses.isEmpty());
    }

    void onlyYesOpensWebAddresses()
    {
        const std::pair<QByteArray, bool> rows[] = {
            {"https://www.example.org/a?b=1", true},
            {"http://www.example.org", true},
            {"ftp://ftp.example.org/alembra.zip", true},
            {"", false},
            {"/usr/bin/env", false},
            {"file:///usr/bin/env", false},
            {"javascript:alert(1)", false},
            {"https:///etc/passwd", false},
        };
        for (const auto &[url, isWeb] : rows) {
            for (const auto answer : {Desktop::Yes, Desktop::No}) {
                init();
                m_network->content = published("2.0.0", url);
                m_desktop->answers = {answer};
                m_updates->Verifier();
                const bool opened = isWeb && answer == Desktop::Yes;
                QCOMPARE(m_desktop->targets, opened ? QStringList(url) : QStringList());
                QCOMPARE(m_desktop->boxes.size(), 1);
            }
        }
    }

    void localCopyThatCannotBeRemovedIsAnError()
    {
        QVERIFY(QDir().mkdir(localCopy()));
        m_network->content = published("2.0.0");
        m_updates->Verifier();
        QCOMPARE(m_desktop->boxes, (Boxes{{failed(), 48}}));
    }

    void aSecondCheckInsideTheFirstDoesNothing()
    {
        m_network->content = published("1.1.0");
        m_network->whileDownloading = [this] { m_updates->Verifier(); };
        m_updates->Verifier();
        QCOMPARE(m_network->addresses.size(), 1);
        QCOMPARE(m_desktop->boxes.size(), 1);
    }

    void findsValuesAsTheyAreWritten()
    {
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"[ALEMBRA]\r\nURL=page\r\n", "page"},
            {"[Alembra]\nurl=page\n", "page"},
            {"  [ALEMBRA]\n \tURL  =  a page \t\n", "a page"},
            {"[ALEMBRA]\nURL=\"'page'\"\n", "'page'"}, // quotes come off once
            {"[ALEMBRA]\nURL=page?a=b\n", "page?a=b"},
            {"[ALEMBRA]\nURL=first\nURL=second\n", "first"},
            {"[ALEMBRA]\nVersion=1\n[Other]\n[ALEMBRA]\nURL=late\n", ""}, // the first of two sections
            {"[ALEMBRA]\n[OTHER]\nURL=page\n", ""},
            {"URL=page\n[ALEMBRA]\n", ""},
            {"[ALEMBRA]\n;URL=old\nURL\nURL=page\n", "page"},
            {"[ALEMBRA]\nURL2=other\nURL=page\n", "page"},
            {"[ALEMBRA]\nURL=page", "page"},
            {"[ALEMBRA]\nURL=" + QByteArray(300, 'x') + '\n', QByteArray(254, 'x')},
            {QByteArray("\0\xff[\n]=\r[\0", 9), ""},
        };
        for (const auto &[content, value] : rows) {
            writeFile(localCopy(), content);
            QCOMPARE(ProfileFile::value(localCopy(), "ALEMBRA", "URL"), QString(value));
        }
    }

    void propertiesReportTheirChanges()
    {
        const QSignalSpy changes(m_updates.get(), &MiseAjour::propertyChanged);
        for (const char *name : {"Adresse", "Logiciel", "Version"}) {
            m_updates->setProperty(name, "text");
            QCOMPARE(changes.last().at(0).toString(), QString(name));
            QCOMPARE(m_updates->property(name).toString(), QString("text"));
        }
    }

private:
    using Boxes = QList<QPair<QString, int>>;

    QString localCopy() const { return m_folder->filePath("Tempo.net"); }
    static QString failed()
    {
        return QString("Error during checking for updates. Please verify you are using the most recent "
                       "version of "
                       "Alembra at ") +
               BuildSettings::WebSite;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<ScriptedNetwork> m_network;
    std::unique_ptr<MiseAjour> m_updates;
};

const TestClass<MiseAjourTest> miseAjourTest;
#include "miseajour_test.moc"
