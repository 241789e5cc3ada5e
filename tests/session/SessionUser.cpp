#include "tests/session/SessionUser.h"

#include "language/LangString.h"
#include "sf/SFStatic.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <cstdio>

namespace {

QWindow* WindowOf(QWidget* w)
{
    return w && w->window() ? w->window()->windowHandle() : nullptr;
}

} // namespace

void CSessionUser::Fail(const QString& what)
{
    ++m_failures;
    std::fprintf(stderr, "tallix_session: FAILED: %s\n", qUtf8Printable(what));
}

bool CSessionUser::Check(bool ok, const QString& what)
{
    if (!ok)
        Fail(what);
    return ok;
}

bool CSessionUser::CheckText(const QString& actual, const QString& expected, const QString& what)
{
    return Check(actual == expected,
                 QStringLiteral("%1: \"%2\", expected \"%3\"").arg(what, actual, expected));
}

void CSessionUser::Click(QWidget* w, QPoint at)
{
    if (!w) {
        Fail(QStringLiteral("nothing to click"));
        return;
    }
    if (!w->isVisible() || !w->isEnabled()) {
        Fail(QStringLiteral("%1 is not there to click").arg(w->objectName()));
        return;
    }
    QWindow* window = WindowOf(w);
    if (!window) {
        Fail(QStringLiteral("%1 has no window").arg(w->objectName()));
        return;
    }
    if (at == QPoint(-1, -1))
        at = w->rect().center();
    const QPoint p = w->mapTo(w->window(), at);
    QTest::mouseMove(window, p);
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, p);
}

void CSessionUser::Choose(QComboBox* combo, int index, const QString& what)
{
    if (!combo) {
        Fail(QStringLiteral("no combo for %1").arg(what));
        return;
    }
    Click(combo);
    QAbstractItemView* view = combo->view();
    if (!WaitUntil([view] { return view->isVisible(); })) {
        Fail(QStringLiteral("the popup of %1 did not open").arg(what));
        return;
    }
    QWindow* popup = WindowOf(view);
    for (int guard = 0; guard < 40 && view->currentIndex().row() != index; ++guard)
        QTest::keyClick(popup, view->currentIndex().row() < index ? Qt::Key_Down : Qt::Key_Up);
    QTest::keyClick(popup, Qt::Key_Return);
    // Where the combo stands now is the program's answer, checked by the caller.
    if (!WaitUntil([view] { return !view->isVisible(); }))
        Fail(QStringLiteral("the popup of %1 stayed open").arg(what));
}

QWidget* CSessionUser::FocusAfterClick(QWidget* field)
{
    Click(field, QPoint(8, field->height() / 2));
    QWidget* focus = QApplication::focusWidget();
    if (!focus || (focus != field && !field->isAncestorOf(focus)))
        return nullptr;
    return focus;
}

void CSessionUser::Type(QWidget* field, const QString& text, const QString& what, bool enter)
{
    if (!field) {
        Fail(QStringLiteral("nothing to type %1 into").arg(what));
        return;
    }
    if (!FocusAfterClick(field)) {
        Fail(QStringLiteral("a click did not put the focus into %1").arg(what));
        return;
    }
    QWindow* window = WindowOf(field);
    QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(window, Qt::Key_Delete);
    for (const QChar c : text)
        QTest::keyClick(window, c.toLatin1());
    if (enter)
        QTest::keyClick(window, Qt::Key_Return);
}

void CSessionUser::Press(QWidget* w, int key, int times)
{
    QWindow* window = WindowOf(w);
    if (!window) {
        Fail(QStringLiteral("no window for a key"));
        return;
    }
    for (int i = 0; i < times; ++i)
        QTest::keyClick(window, static_cast<Qt::Key>(key));
}

bool CSessionUser::WaitUntil(const std::function<bool()>& done, int ms)
{
    return QTest::qWaitFor(done, ms);
}

void CSessionUser::Idle(int ms)
{
    QTest::qWait(ms);
}

void CSessionUser::ClickIntoModal(QWidget* button, const std::function<void(QDialog*)>& inside,
                                  const QString& what)
{
    bool seen = false;
    QTimer poll;
    poll.setInterval(10);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        poll.stop();
        seen = true;
        QPointer<QDialog> alive(dialog);
        inside(dialog);
        if (alive && alive->isVisible()) {
            Fail(QStringLiteral("%1 was left open").arg(what));
            alive->reject();
        }
    });
    poll.start();
    Click(button);
    poll.stop();
    Check(seen, QStringLiteral("%1 did not open").arg(what));
}

QString CSessionUser::Word(const wchar_t* key)
{
    return QString::fromWCharArray(GetLangString(key, 0));
}

QString CSessionUser::LabelText(CSFStatic* label)
{
    wchar_t buffer[512] = {};
    if (label)
        label->GetStaticText(buffer, 512);
    return QString::fromWCharArray(buffer);
}
