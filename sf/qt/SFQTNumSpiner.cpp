#include "sf/qt/SFQTNumSpiner.h"

#include "sf/qt/SFQtConvert.h"
#include "sf/qt/SFSkinParse.h"

CSFQTNumSpiner::CSFQTNumSpiner(ISFNumSpinerEvent* handler, QWidget* parent)
    : CSFQTControl(handler, parent), m_originStyle(0)
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFrame(false);
    connect(this, qOverload<int>(&QSpinBox::valueChanged), this, &CSFQTNumSpiner::OnValueChanged);
}

CSFQTNumSpiner::~CSFQTNumSpiner()
{
    // Qt may still emit while its own parts go down; this half is gone by then.
    disconnect(this, nullptr, this, nullptr);
}

int CSFQTNumSpiner::Create(const wchar_t*, const tagRECT& rect, void* parent, unsigned int id)
{
    Place(parent, SFRectForCreate(rect), id, "spinner");
    return 1;
}

void CSFQTNumSpiner::SetRange(int min, int max)
{
    setRange(min, max);
}

void CSFQTNumSpiner::GetRange(int& min, int& max)
{
    min = minimum();
    max = maximum();
}

void CSFQTNumSpiner::SetStep(int step)
{
    setSingleStep(step);
}

int CSFQTNumSpiner::GetStep()
{
    return singleStep();
}

void CSFQTNumSpiner::SetCurrentNum(int value)
{
    setValue(value);
}

int CSFQTNumSpiner::GetCurrentNum()
{
    return value();
}

void CSFQTNumSpiner::StepUp()
{
    stepUp();
}

void CSFQTNumSpiner::StepDown()
{
    stepDown();
}

QString CSFQTNumSpiner::SkinStyleSheet(const ImageNumSpinerStyle& s)
{
    const auto url = [](const std::wstring& file) { return SFCssQuoted(SFSkinFilePath(file)); };
    return QStringLiteral("QSpinBox { padding: 0 8px; border-image: url(") + url(s.strFrame) +
           QStringLiteral(");}") +
           QStringLiteral("QSpinBox::up-button {width: 21px; border-image: url(") +
           url(s.strUpNormal) + QStringLiteral(");}") +
           QStringLiteral("QSpinBox::up-button:hover {border-image: url(") + url(s.strUpNormal) +
           QStringLiteral(");}") +
           QStringLiteral("QSpinBox::up-button:pressed {border-image: url(") + url(s.strUpPressed) +
           QStringLiteral(");}") +
           QStringLiteral("QSpinBox::up-button:disabled {border-image: url(") +
           url(s.strUpDisabled) + QStringLiteral(");}") +
           QStringLiteral("QSpinBox::down-button {width: 21px; border-image: url(") +
           url(s.strDownNormal) + QStringLiteral(");}") +
           QStringLiteral("QSpinBox::down-button:hover {border-image: url(") +
           url(s.strDownNormal) + QStringLiteral(");}") +
           QStringLiteral("QSpinBox::down-button:pressed {border-image: url(") +
           url(s.strDownPressed) + QStringLiteral(");}") +
           QStringLiteral("QSpinBox::down-button:disabled {border-image: url(") +
           url(s.strDownDisabled) + QStringLiteral(");}");
}

int CSFQTNumSpiner::SetSkin(ImageNumSpinerStyle* style)
{
    if (m_originStyle == 1 || !style)
        return 0;
    setStyleSheet(SkinStyleSheet(*style));
    return 1;
}

void CSFQTNumSpiner::EnableWindow(int enable)
{
    setEnabled(enable != 0);
}

void CSFQTNumSpiner::SetCircleStep(int circle)
{
    setWrapping(circle != 0);
}

void CSFQTNumSpiner::SetOriginStyle(int origin)
{
    m_originStyle = origin;
}

void CSFQTNumSpiner::OnValueChanged(int value)
{
    if (m_pHandler)
        m_pHandler->OnCurrentNumChanged(m_nID, value, static_cast<CSFNumSpiner*>(this), 0);
}
