#include "core/buildsettings.h"
#include "tests/support/scripteddesktop.h"
#include "update/miseajour.h"
#include "update/profilefile.h"
#include "update/updatenetwork.h"

#include <QFile>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
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
        QFile file(path);
        if (content && file.open(QIODevice::WriteOnly))
            file.write(*content);
    }
};

const QString NotConnected =
    QStringLiteral("Impossible to check for updates, please verify your internet connexion.");
const QString UpToDate = QStringLiteral("There is no updates for Alembra. Your version is up-to-date.");

QString failed()
{
    return QStringLiteral("Error during checking for updates. Please verify you are using the most recent "
                          "version of Alembra at ") +
           QLatin1StringView(BuildSettings::WebSite);
}

QByteArray published(const QByteArray &version, const QByteArray &url = "https://www.example.org/get")
{
    return "[ALEMBRA]\r\nVersion=" + version + "\r\nURL=" + url + "\r\n";
}

} // namespace

class MiseAjourTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void outcomeByVersion_data();
    void outcomeByVersion();
    void withoutConnectionNothingIsFetchedOrWritten();
    void yesOpensWebAddressesOnly_data();
    void yesOpensWebAddressesOnly();
    void noOpensNothing();
    void localCopyThatCannotBeRemovedIsAnError();
    void aSecondCheckInsideTheFirstDoesNothing();
    void findsValuesAsTheyAreWritten_data();
    void findsValuesAsTheyAreWritten();
    void propertiesKeepTheirOrderAndTellTheHost();

private:
    QString localCopy() const { return m_folder->filePath(QStringLiteral("Tempo.net")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<ScriptedNetwork> m_network;
    std::unique_ptr<MiseAjour> m_updates;
};

void MiseAjourTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_desktop = std::make_unique<ScriptedDesktop>();
    m_network = std::make_unique<ScriptedNetwork>();
    m_updates = std::make_unique<MiseAjour>(*m_desktop, *m_network, m_folder->path());
    m_updates->setAdresse(QStringLiteral("https://www.example.org/versions_fr.ini"));
    m_updates->setLogiciel(QStringLiteral("ALEMBRA"));
    m_updates->setVersion(QStringLiteral("1.1.0"));
}

void MiseAjourTest::outcomeByVersion_data()
{
    const auto newer = [](const QString &version) {
        return QStringLiteral(
                   "The version of Alembra you are using is 1.1.0\n\nA more recent version is "
                   "available, which is version %1\n\nWould you like to download this new version?")
            .arg(version);
    };
    QTest::addColumn<std::optional<QByteArray>>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("style");
    using Content = std::optional<QByteArray>;
    QTest::newRow("newer") << Content(published("1.1.1")) << newer(QStringLiteral("1.1.1")) << 36;
    QTest::newRow("more digits count as newer")
        << Content(published("1.10.0")) << newer(QStringLiteral("1.10.0")) << 36;
    QTest::newRow("the highest number")
        << Content(published("3.2767")) << newer(QStringLiteral("3.2767")) << 36;
    QTest::newRow("equal") << Content(published("1.1.0")) << UpToDate << 64;
    QTest::newRow("equal without dots") << Content(published("110")) << UpToDate << 64;
    QTest::newRow("lower") << Content(published("1.0.9")) << UpToDate << 64;
    QTest::newRow("fewer parts count as older") << Content(published("1.2")) << UpToDate << 64;
    QTest::newRow("nothing arrived") << Content() << failed() << 48;
    QTest::newRow("empty file") << Content(QByteArray()) << failed() << 48;
    QTest::newRow("another program only") << Content("[OTHER]\nVersion=9.9.9\n") << failed() << 48;
    QTest::newRow("no version") << Content("[ALEMBRA]\nURL=https://www.example.org\n") << failed() << 48;
    QTest::newRow("no number") << Content(published("1.2 beta")) << failed() << 48;
    QTest::newRow("dots only") << Content(published("..")) << failed() << 48;
    QTest::newRow("above 16 bits") << Content(published("3.2768")) << failed() << 48;
    QTest::newRow("far above") << Content(published(QByteArray(300, '9'))) << failed() << 48;
    QTest::newRow("web page in its place") << Content("<html>[ALEMBRA]</html>") << failed() << 48;
}

void MiseAjourTest::outcomeByVersion()
{
    QFETCH(std::optional<QByteArray>, content);
    QFETCH(QString, text);
    QFETCH(int, style);
    m_network->content = content;

    m_updates->Verifier();

    QCOMPARE(m_desktop->boxes, (QList<QPair<QString, int>>{{text, style}}));
    QCOMPARE(m_network->addresses, QStringList{QStringLiteral("https://www.example.org/versions_fr.ini")});
    QVERIFY(!QFile::exists(localCopy()));
    QVERIFY(m_desktop->targets.isEmpty());
}

void MiseAjourTest::withoutConnectionNothingIsFetchedOrWritten()
{
    m_network->connected = false;
    m_network->content = published("9.9.9");

    m_updates->Verifier();

    QCOMPARE(m_desktop->boxes, (QList<QPair<QString, int>>{{NotConnected, 48}}));
    QVERIFY(m_network->addresses.isEmpty());
    QVERIFY(!QFile::exists(localCopy()));
}

void MiseAjourTest::yesOpensWebAddressesOnly_data()
{
    QTest::addColumn<QByteArray>("url");
    QTest::addColumn<bool>("opened");
    QTest::newRow("https") << QByteArray("https://www.example.org/a?b=1") << true;
    QTest::newRow("http") << QByteArray("http://www.example.org") << true;
    QTest::newRow("ftp") << QByteArray("ftp://ftp.example.org/alembra.zip") << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("local path") << QByteArray("/usr/bin/env") << false;
    QTest::newRow("file") << QByteArray("file:///usr/bin/env") << false;
    QTest::newRow("script") << QByteArray("javascript:alert(1)") << false;
    QTest::newRow("without host") << QByteArray("https:///etc/passwd") << false;
}

void MiseAjourTest::yesOpensWebAddressesOnly()
{
    QFETCH(QByteArray, url);
    QFETCH(bool, opened);
    m_network->content = published("2.0.0", url);
    m_desktop->answers = {Desktop::Yes};

    m_updates->Verifier();

    QCOMPARE(m_desktop->targets, opened ? QStringList{QString::fromLatin1(url)} : QStringList{});
    QCOMPARE(m_desktop->boxes.size(), 1);
}

void MiseAjourTest::noOpensNothing()
{
    m_network->content = published("2.0.0");
    m_desktop->answers = {Desktop::No};
    m_updates->Verifier();
    QVERIFY(m_desktop->targets.isEmpty());
}

void MiseAjourTest::localCopyThatCannotBeRemovedIsAnError()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("Tempo.net")));
    m_network->content = published("2.0.0");
    m_updates->Verifier();
    QCOMPARE(m_desktop->boxes, (QList<QPair<QString, int>>{{failed(), 48}}));
}

void MiseAjourTest::aSecondCheckInsideTheFirstDoesNothing()
{
    m_network->content = published("1.1.0");
    m_network->whileDownloading = [this] { m_updates->Verifier(); };
    m_updates->Verifier();
    QCOMPARE(m_network->addresses.size(), 1);
    QCOMPARE(m_desktop->boxes.size(), 1);
}

void MiseAjourTest::findsValuesAsTheyAreWritten_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *name, const QByteArray &content, const QByteArray &value) {
        QTest::newRow(name) << content << QString::fromLatin1(value);
    };
    row("as usual", "[ALEMBRA]\r\nURL=page\r\n", "page");
    row("case of letters", "[Alembra]\nurl=page\n", "page");
    row("blanks around", "  [ALEMBRA]\n \tURL  =  a page \t\n", "a page");
    row("quotes come off once", "[ALEMBRA]\nURL=\"'page'\"\n", "'page'");
    row("equals sign inside", "[ALEMBRA]\nURL=page?a=b\n", "page?a=b");
    row("first of two keys", "[ALEMBRA]\nURL=first\nURL=second\n", "first");
    row("first of two sections", "[ALEMBRA]\nVersion=1\n[Other]\n[ALEMBRA]\nURL=late\n", "");
    row("section ends at the next", "[ALEMBRA]\n[OTHER]\nURL=page\n", "");
    row("before any section", "URL=page\n[ALEMBRA]\n", "");
    row("comment", "[ALEMBRA]\n;URL=old\nURL=page\n", "page");
    row("longer name", "[ALEMBRA]\nURL2=other\nURL=page\n", "page");
    row("no line end", "[ALEMBRA]\nURL=page", "page");
    row("cut at 254", "[ALEMBRA]\nURL=" + QByteArray(300, 'x') + '\n', QByteArray(254, 'x'));
    row("no text at all", QByteArray("\0\xff[\n]=\r[\0", 9), "");
}

void MiseAjourTest::findsValuesAsTheyAreWritten()
{
    QFETCH(QByteArray, content);
    QFile file(localCopy());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    QTEST(ProfileFile::value(localCopy(), QStringLiteral("ALEMBRA"), QStringLiteral("URL")), "value");
}

void MiseAjourTest::propertiesKeepTheirOrderAndTellTheHost()
{
    const QMetaObject &type = MiseAjour::staticMetaObject;
    QStringList names;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        names << QLatin1StringView(type.property(i).name());
    QCOMPARE(names,
             (QStringList{QStringLiteral("Adresse"), QStringLiteral("Logiciel"), QStringLiteral("Version")}));

    MiseAjour updates(*m_desktop, *m_network, m_folder->path());
    const QSignalSpy changes(&updates, &MiseAjour::propertyChanged);
    for (const QString &name : names) {
        QVERIFY(updates.property(qPrintable(name)).toString().isEmpty());
        updates.setProperty(qPrintable(name), name + QStringLiteral(" text"));
        QCOMPARE(changes.last().at(0).toString(), name);
        QCOMPARE(updates.property(qPrintable(name)).toString(), name + QStringLiteral(" text"));
    }
}

QTEST_GUILESS_MAIN(MiseAjourTest)
#include "miseajour_test.moc"
