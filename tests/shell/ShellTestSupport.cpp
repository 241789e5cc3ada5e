#include "ShellTestSupport.h"

#include "LangString.h"
#include "MainDlgEventImp.h"
#include "MainWindowBringUp.h"
#include "SFApplication.h"
#include "SFFactory.h"
#include "SFQtConvert.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

void UseLanguage(const std::string& dir, int language)
{
    g_nLanguage = language;
    SFSetLanguageDirForTesting(dir);
    SFResetLanguageForTesting();
}

} // namespace

CShellData::CShellData(int language)
{
    SFSetSkinPath(QStringLiteral(TALLIX_APP_DIR "/Bin/Skin/").toStdWString().c_str());
    QFile css(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
    qApp->setStyleSheet(css.open(QIODevice::ReadOnly | QIODevice::Text)
                            ? QString::fromUtf8(css.readAll())
                            : QString());
    UseLanguage(TALLIX_APP_DIR, language);
}

CShellData::CShellData(Empty)
{
    SFSetSkinPath((m_empty.path() + QStringLiteral("/Bin/Skin/")).toStdWString().c_str());
    qApp->setStyleSheet(QString());
    UseLanguage(m_empty.path().toStdString(), 0);
}

std::unique_ptr<CShellData> CShellData::Nothing()
{
    return std::unique_ptr<CShellData>(new CShellData(Empty{}));
}

CShellData::~CShellData()
{
    qApp->setStyleSheet(QString());
    SFSetSkinPath(L"");
    UseLanguage(std::string(), 1);
}

CMainWindowUnderTest::CMainWindowUnderTest() : m_pEvent(nullptr), m_pDlg(nullptr)
{
    m_pDlg = BringUpMainWindow(m_style, m_pEvent);
}

CMainWindowUnderTest::~CMainWindowUnderTest()
{
    TearDown();
}

void CMainWindowUnderTest::TearDown()
{
    SFDestroyControl(m_pDlg);
    m_pDlg = nullptr;
    delete m_pEvent;
    m_pEvent = nullptr;
}

QWidget* CMainWindowUnderTest::Window() const
{
    return dynamic_cast<QWidget*>(m_pDlg);
}

QWidget* CMainWindowUnderTest::Find(const char* name) const
{
    QWidget* window = Window();
    return window ? window->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
}

QAbstractButton* CMainWindowUnderTest::Button(unsigned int id) const
{
    const QByteArray name = "button_" + QByteArray::number(id);
    return qobject_cast<QAbstractButton*>(Find(name.constData()));
}

void WhenModalDialogShows(std::function<void(QDialog*)> inspect)
{
    auto* poll = new QTimer(qApp);
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, inspect] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        QPointer<QDialog> alive(dialog);
        inspect(dialog);
        QTimer::singleShot(10000, qApp, [alive] {
            if (alive && alive->isVisible()) {
                ADD_FAILURE() << "the dialog was left open";
                alive->reject();
            }
        });
    });
    poll->start();
}

void PressKey(QWidget* dialog, int key)
{
    QWidget* target = QApplication::focusWidget();
    if (!target || target->window() != dialog)
        target = dialog;
    QTest::keyClick(target, static_cast<Qt::Key>(key));
}

int CountNear(const QImage& image, const QRect& rect, QRgb colour, int tolerance)
{
    int count = 0;
    const QRect area = rect.intersected(image.rect());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb p = image.pixel(x, y);
            if (std::abs(qRed(p) - qRed(colour)) <= tolerance
                && std::abs(qGreen(p) - qGreen(colour)) <= tolerance
                && std::abs(qBlue(p) - qBlue(colour)) <= tolerance)
                ++count;
        }
    }
    return count;
}

void SaveShot(QWidget* widget, const char* name)
{
    const QByteArray dir = qgetenv("TALLIX_SHOT_DIR");
    if (dir.isEmpty() || !widget)
        return;
    const QString path = QString::fromLocal8Bit(dir) + QLatin1Char('/') + QString::fromLatin1(name);
    EXPECT_TRUE(widget->grab().save(path)) << path.toStdString();
}

void CRecordingDialog::MoveWindow(tagRECT* rect)
{
    if (rect)
        moves.push_back(*rect);
    calls.push_back("move");
}

void CRecordingDialog::MoveWindow(int x, int y, int w, int h)
{
    moves.push_back(tagRECT{ x, y, x + w, y + h });
    calls.push_back("move");
}
