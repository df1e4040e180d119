#include "core/module1.h"
#include "tests/support/files.h"
#include "widgets/picturewindow.h"
#include "widgets/structurewindow.h"

class StructureWindowTest final : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_folder;
    std::unique_ptr<QWidget> m_form1;
    Module1 m_module1;

    QString pathOf(int row) const { return m_folder.filePath(QString("Data/chemicals/%1.bmp").arg(row)); }

    PictureWindow *open(int row)
    {
        openStructureWindow(m_module1, *m_form1, row, "Acetone");
        return m_form1->findChild<PictureWindow *>("Form2");
    }

private Q_SLOTS:
    void init()
    {
        makePicture(pathOf(1), {3000, 300});
        m_form1 = std::make_unique<QWidget>();
        m_form1->show();
        m_module1.AppFolder = m_folder.path();
    }

    void aTooLargeFormulaIsMadeToFit()
    {
        const PictureWindow *window = open(1);
        const QRect shown = window->Picture1->geometry();
        QVERIFY(window->rect().contains(shown));
        QVERIFY(shown.top() > window->Label1->geometry().bottom());
        QVERIFY(qAbs(shown.width() - 10 * shown.height()) <= 10);
    }

    void saysSoWhereThereIsNoFormula()
    {
        PictureWindow *window = open(5);
        QCOMPARE(window->windowTitle(), "Chimical structure");
        QVERIFY(window->isEnabled() && !m_form1->isEnabled());
        QCOMPARE(window->Label2->text(), "Image unavailable");
        QVERIFY(window->Label2->isVisible() && !window->Picture1->isVisible());
        window->close();
        QVERIFY(m_form1->isEnabled());
        QTRY_VERIFY(!m_form1->findChild<PictureWindow *>("Form2"));
        window = open(1); // the next opening starts anew
        QVERIFY(window->Label2->isHidden() && window->Picture1->isVisible());
    }
};

const TestClass<StructureWindowTest> structureWindowTest;
#include "structure_window_test.moc"
