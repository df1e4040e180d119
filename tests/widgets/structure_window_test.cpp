#include "core/module1.h"
#include "widgets/picturewindow.h"
#include "widgets/structurewindow.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class StructureWindowTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsTheFormulaOfTheRowAboveADisabledOwner();
    void aTooLargeFormulaIsMadeToFit();
    void everyWayOfClosingEnablesTheOwner_data();
    void everyWayOfClosingEnablesTheOwner();
    void saysSoWhereThereIsNoFormula();
    void anyOtherFailureOpensNothing();
    void theNextOpeningStartsAnew();

private:
    void writePicture(int row, QSize size)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QVERIFY(picture.save(pathOf(row)));
    }
    QString pathOf(int row) const
    {
        return m_folder->filePath(QStringLiteral("Data/chemicals/%1.bmp").arg(row));
    }
    PictureWindow *form2() const { return m_form1->findChild<PictureWindow *>(QStringLiteral("Form2")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_form1;
    std::unique_ptr<Module1> m_module1;
};

void StructureWindowTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("Data/chemicals")));
    m_form1 = std::make_unique<QWidget>();
    m_form1->show();
    m_module1 = std::make_unique<Module1>();
    m_module1->AppFolder = m_folder->path();
}

void StructureWindowTest::showsTheFormulaOfTheRowAboveADisabledOwner()
{
    writePicture(17, {200, 100});
    openStructureWindow(*m_module1, *m_form1, 17, QStringLiteral("Acetone"));

    PictureWindow *window = form2();
    QVERIFY(window);
    QCOMPARE(m_module1->SelectedChart, 17);
    QCOMPARE(window->windowTitle(), QStringLiteral("Chimical structure"));
    QCOMPARE(window->Label1->text(), QStringLiteral("Acetone"));
    QVERIFY(window->Label2->isHidden());
    QVERIFY(window->isEnabled());
    QVERIFY(!m_form1->isEnabled());
    // Half of what is left of the window beside 50 x 8 pixels.
    QCOMPARE(window->Picture1->geometry(),
             QRect((window->width() - 50 - 200) / 2, (window->height() - 8 - 100 + 1) / 2, 200, 100));
}

void StructureWindowTest::aTooLargeFormulaIsMadeToFit()
{
    writePicture(1, {3000, 300});
    openStructureWindow(*m_module1, *m_form1, 1, QStringLiteral("Acetone"));

    const QRect shown = form2()->Picture1->geometry();
    QVERIFY(form2()->rect().contains(shown));
    QVERIFY(shown.top() > form2()->Label1->geometry().bottom());
    QVERIFY(qAbs(shown.width() - 10 * shown.height()) <= 10);
}

void StructureWindowTest::everyWayOfClosingEnablesTheOwner_data()
{
    QTest::addColumn<std::function<void(PictureWindow &)>>("close");
    using Close = std::function<void(PictureWindow &)>;
    QTest::newRow("OK") << Close(
        [](PictureWindow &window) { window.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click(); });
    QTest::newRow("close box") << Close([](PictureWindow &window) { window.close(); });
    QTest::newRow("Escape") << Close([](PictureWindow &window) { QTest::keyClick(&window, Qt::Key_Escape); });
}

void StructureWindowTest::everyWayOfClosingEnablesTheOwner()
{
    QFETCH(std::function<void(PictureWindow &)>, close);
    writePicture(1, {50, 50});
    openStructureWindow(*m_module1, *m_form1, 1, QStringLiteral("Acetone"));
    const QPointer<PictureWindow> window = form2();

    close(*window);

    QVERIFY(m_form1->isEnabled());
    QTRY_VERIFY(!window);
}

void StructureWindowTest::saysSoWhereThereIsNoFormula()
{
    openStructureWindow(*m_module1, *m_form1, 5, QStringLiteral("Petroleum ether"));

    PictureWindow *window = form2();
    QVERIFY(window && window->isVisible());
    QCOMPARE(window->Label1->text(), QStringLiteral("Petroleum ether"));
    QCOMPARE(window->Label2->text(), QStringLiteral("Image unavailable"));
    QVERIFY(window->Label2->isVisible());
    QVERIFY(!window->Picture1->isVisible());
    QVERIFY(!m_form1->isEnabled());
}

void StructureWindowTest::anyOtherFailureOpensNothing()
{
    QFile file(pathOf(3));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    file.close();
    openStructureWindow(*m_module1, *m_form1, 3, QStringLiteral("Acetone"));
    QVERIFY(!form2());

    QVERIFY(QDir(m_folder->filePath(QStringLiteral("Data/chemicals"))).removeRecursively());
    openStructureWindow(*m_module1, *m_form1, 3, QStringLiteral("Acetone"));
    QVERIFY(!form2());
    QVERIFY(m_form1->isEnabled());
}

void StructureWindowTest::theNextOpeningStartsAnew()
{
    openStructureWindow(*m_module1, *m_form1, 5, QStringLiteral("Petroleum ether"));
    form2()->close();
    QTRY_VERIFY(!form2());

    writePicture(5, {50, 50});
    openStructureWindow(*m_module1, *m_form1, 5, QStringLiteral("Petroleum ether"));
    QVERIFY(form2()->Label2->isHidden());
    QVERIFY(form2()->Picture1->isVisible());
}

QTEST_MAIN(StructureWindowTest)
#include "structure_window_test.moc"
