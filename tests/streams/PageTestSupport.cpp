#include "tests/streams/PageTestSupport.h"

#include "Config/VexUISetting.h"
#include "calculator/CalculatorBottom.h"
#include "language/LangString.h"
#include "sf/DialogStyle.h"
#include "sf/SFDialog.h"
#include "sf/SFFactory.h"
#include "sf/SFRadioBox.h"
#include "sf/SFStatic.h"
#include "sf/qt/SFApplication.h"
#include "sf/qt/SFQtConvert.h"
#include "shell/MainDlgEventImp.h"
#include "shell/MainWindowBringUp.h"
#include "streams/TallixEventImp.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>
#include <string>

namespace {

QString LabelText(CSFStatic* label)
{
    if (!label)
        return QString();
    wchar_t buffer[512] = {};
    label->GetStaticText(buffer, 512);
    return QString::fromWCharArray(buffer);
}

bool Shown(const QWidget* w)
{
    return w && !w->isHidden();
}

} // namespace

void UseProgramEnvironment(int language)
{
    SFSetSkinPath(TALLIX_APP_DIR L"/Bin/Skin/");
    static bool styled = false;
    if (!styled) {
        QFile sheet(QStringLiteral(TALLIX_APP_DIR "/Tallix_Style.css"));
        if (sheet.open(QIODevice::ReadOnly))
            qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
        styled = true;
    }
    // What the start leaves without a settings file.
    g_UISetting.m_nRecordblePersentage = 90;
    g_nLanguage = language;
    SFSetLanguageDirForTesting(TALLIX_APP_DIR);
    SFResetLanguageForTesting();
}

void UserClick(QWidget* w, QPoint at)
{
    if (!w) {
        ADD_FAILURE() << "no widget to click";
        return;
    }
    if (!w->isVisible())
        ADD_FAILURE() << "clicking a hidden widget " << w->objectName().toStdString();
    if (at == QPoint(-1, -1))
        at = w->rect().center();
    QWidget* top = w->window();
    QWindow* window = top->windowHandle();
    if (!window) {
        ADD_FAILURE() << "no window under " << w->objectName().toStdString();
        return;
    }
    const QPoint p = w->mapTo(top, at);
    QTest::mouseMove(window, p);
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, p);
}

CModalWatch::CModalWatch(std::function<void(QDialog*)> inspect) : m_poll(new QTimer(qApp))
{
    m_poll->setInterval(5);
    QTimer* poll = m_poll;
    QObject::connect(poll, &QTimer::timeout, poll, [this, poll, inspect] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        poll->stop();
        ++m_seen;
        QPointer<QDialog> alive(dialog);
        inspect(dialog);
        if (alive && alive->isVisible()) {
            ADD_FAILURE() << "the dialog was left open";
            alive->reject();
        }
    });
    m_poll->start();
}

CModalWatch::~CModalWatch()
{
    delete m_poll;
}

CPageDriver::CPageDriver(CTallixEventImp* page) : m_page(page)
{
}
QWidget* CPageDriver::Child(const char* name) const
{
    QWidget* page = SFWidgetFromHandle(m_page->GetUIWnd());
    return page ? page->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
}
CSFQTListCtrl* CPageDriver::List() const
{
    return dynamic_cast<CSFQTListCtrl*>(Child("listctrl_2014"));
}
CCalculatorBottom* CPageDriver::Calculator() const
{
    return m_page->GetCalculator();
}
void CPageDriver::ClickAdd()
{
    UserClick(Child("label_add"));
}
void CPageDriver::ClickClearAll()
{
    UserClick(Child("label_clear"));
}

void CPageDriver::AddRows(int count)
{
    for (int i = 0; i < count; ++i)
        ClickAdd();
}

QWidget* CPageDriver::Cell(CSFQTListCtrl::Register reg, int row) const
{
    const CSFQTListCtrl* list = List();
    return list ? list->CellWidget(list->RegisterControl(reg, row)) : nullptr;
}

QWidget* CPageDriver::Reveal(CSFQTListCtrl::Register reg, int row, ChannelColumn col) const
{
    List()->scrollTo(List()->model()->index(row, col));
    return Cell(reg, row);
}

QWidget* CPageDriver::Combo(int row, ChannelColumn col) const
{
    switch (col) {
    case ColCompression:
        return Cell(CSFQTListCtrl::CompressionCombos, row);
    case ColEnvironment:
        return Cell(CSFQTListCtrl::EnvironmentCombos, row);
    case ColResolution:
        return Cell(CSFQTListCtrl::ResolutionCombos, row);
    case ColFrameRate:
        return Cell(CSFQTListCtrl::FrameRateCombos, row);
    default:
        return nullptr;
    }
}

void UserChoose(QComboBox* combo, int index)
{
    if (!combo) {
        ADD_FAILURE() << "no combo to choose in";
        return;
    }
    UserClick(combo);
    QAbstractItemView* view = combo->view();
    if (!QTest::qWaitFor([view] { return view->isVisible(); }, 2000)) {
        ADD_FAILURE() << "the popup did not open";
        return;
    }
    for (int guard = 0; guard < 30 && view->currentIndex().row() != index; ++guard)
        QTest::keyClick(view, view->currentIndex().row() < index ? Qt::Key_Down : Qt::Key_Up);
    QTest::keyClick(view, Qt::Key_Return);
    if (!QTest::qWaitFor([view] { return !view->isVisible(); }, 2000))
        ADD_FAILURE() << "the popup stayed open";
}

void CPageDriver::Choose(int row, ChannelColumn col, int index)
{
    List()->scrollTo(List()->model()->index(row, col));
    UserChoose(qobject_cast<QComboBox*>(Combo(row, col)), index);
}

void UserType(QWidget* w, const QString& text)
{
    if (!w) {
        ADD_FAILURE() << "nothing to type into";
        return;
    }
    UserClick(w, QPoint(8, w->height() / 2));
    QTest::keyClick(w, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(w, Qt::Key_Delete);
    else
        QTest::keyClicks(w, text);
}

void CPageDriver::TypeCustomRate(int row, const QString& text)
{
    UserType(Reveal(CSFQTListCtrl::CustomRateEdits, row, ColFrameRate), text);
}

void CPageDriver::TypeBitrate(int row, const QString& text)
{
    UserType(Reveal(CSFQTListCtrl::BitrateEdits, row, ColBitrate), text);
}

void CPageDriver::StepChannels(int row, int steps)
{
    QWidget* spin = Reveal(CSFQTListCtrl::ChannelSpiners, row, ColChannels);
    if (!spin) {
        ADD_FAILURE() << "no spinner in row " << row;
        return;
    }
    UserClick(spin, QPoint(8, spin->height() / 2));
    for (int i = 0; i < (steps < 0 ? -steps : steps); ++i)
        QTest::keyClick(spin, steps > 0 ? Qt::Key_Up : Qt::Key_Down);
}

void CPageDriver::ToggleAudio(int row)
{
    UserClick(Reveal(CSFQTListCtrl::AudioChecks, row, ColAudio));
}

void CPageDriver::ClickDelete(int row)
{
    UserClick(Reveal(CSFQTListCtrl::DeleteButtons, row, ColOperation));
}

void CPageDriver::ClickPreview(int row)
{
    UserClick(Reveal(CSFQTListCtrl::EnvironmentButtons, row, ColEnvironment));
}

void CPageDriver::FillRow(int row, int compression, int scene, int resolution, int frameRate)
{
    Choose(row, ColCompression, compression);
    if (scene > 0)
        Choose(row, ColEnvironment, scene);
    Choose(row, ColResolution, resolution);
    if (frameRate != Entry::Fps30)
        Choose(row, ColFrameRate, frameRate);
}

QString CPageDriver::Text(int row, int col) const
{
    wchar_t buffer[512] = {};
    List()->GetItemText(row, col, buffer, 512);
    return QString::fromWCharArray(buffer);
}

int CPageDriver::Index(int row, ChannelColumn col) const
{
    const QComboBox* combo = qobject_cast<QComboBox*>(Combo(row, col));
    return combo ? combo->currentIndex() : -100;
}

bool CPageDriver::ComboEnabled(int row, ChannelColumn col) const
{
    const QWidget* combo = Combo(row, col);
    return combo && combo->isEnabled();
}

bool CPageDriver::PreviewShown(int row) const
{
    return Shown(Cell(CSFQTListCtrl::EnvironmentButtons, row));
}
bool CPageDriver::CustomRateShown(int row) const
{
    return Shown(Cell(CSFQTListCtrl::CustomRateEdits, row));
}

QString CPageDriver::CustomRateText(int row) const
{
    const QLineEdit* edit = qobject_cast<QLineEdit*>(Cell(CSFQTListCtrl::CustomRateEdits, row));
    return edit ? edit->text() : QStringLiteral("<none>");
}

int CPageDriver::Rows() const
{
    return List()->GetItemCount();
}
QString CPageDriver::ChannelsLabel() const
{
    return LabelText(dynamic_cast<CSFStatic*>(Child(CCalculatorBottom::kNameChannelCount)));
}
QString CPageDriver::BitrateLabel() const
{
    return LabelText(dynamic_cast<CSFStatic*>(Child(CCalculatorBottom::kNameBitrate)));
}
QString CPageDriver::ResultCaption() const
{
    return LabelText(dynamic_cast<CSFStatic*>(Child(CCalculatorBottom::kNameResultCaption)));
}
QString CPageDriver::ResultValue() const
{
    return LabelText(dynamic_cast<CSFStatic*>(Child(CCalculatorBottom::kNameResultValue)));
}

void CPageDriver::ClickMode(unsigned int radioId)
{
    UserClick(Child(("radio_" + std::to_string(radioId)).c_str()));
}

CMainWindowUnderTest::CMainWindowUnderTest()
{
    DialogStyle style;
    m_dlg = BringUpMainWindow(style, m_event);
    if (QWidget* w = Window()) {
        w->activateWindow();
        if (!QTest::qWaitForWindowExposed(w))
            ADD_FAILURE() << "the main window was not exposed";
    } else {
        ADD_FAILURE() << "no main window";
    }
    m_driver = std::make_unique<CPageDriver>(Page());
}

CMainWindowUnderTest::~CMainWindowUnderTest()
{
    m_driver.reset();
    SFDestroyControl(m_dlg);
    delete m_event;
}

QWidget* CMainWindowUnderTest::Window() const
{
    return dynamic_cast<QWidget*>(m_dlg);
}
QWidget* CMainWindowUnderTest::Find(const char* name) const
{
    QWidget* window = Window();
    return window ? window->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
}

QAbstractButton* CMainWindowUnderTest::Button(unsigned int id) const
{
    return qobject_cast<QAbstractButton*>(Find(("button_" + std::to_string(id)).c_str()));
}

CTallixEventImp* CMainWindowUnderTest::Page() const
{
    return m_event ? m_event->GetPageEvent() : nullptr;
}
