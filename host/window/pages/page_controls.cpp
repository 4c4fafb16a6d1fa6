// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_controls.h"

#include "host/session/setting_index.h"
#include "host/window/look/contrast.h"
#include "host/window/look/mnemonics.h"
#include "platform/choice_box.h"
#include "platform/layout_loader.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

#include <chrono>

namespace host {

namespace {

constexpr std::chrono::milliseconds flashTime(1000);
constexpr int flashMargin = 5; // pixels around the control

struct ControlText
{
    Q_DECLARE_TR_FUNCTIONS(ControlText)
};

QString nameOf(const QWidget *control, const QList<QLabel *> &labels)
{
    if (!control->accessibleName().isEmpty())
        return control->accessibleName();
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        return bareText(button->text());
    for (const QLabel *label : labels) {
        if (label->buddy() == control)
            return bareText(label->text());
    }
    return {};
}

// Whether a widget is not a control of its own: the field of a spin box, a reset button, or a scroll area.
bool isPart(const QWidget *control)
{
    const bool onlyScrolls = qobject_cast<const QAbstractScrollArea *>(control) &&
                             !qobject_cast<const QAbstractItemView *>(control);
    return onlyScrolls || qobject_cast<const QAbstractSpinBox *>(control->parentWidget()) ||
           control->property("optionKey").isValid();
}

class FlashRing : public QWidget
{
public:
    FlashRing(QWidget *page, const QRect &place) : QWidget(page)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(place);
        const bool moves = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
        m_strength.setStartValue(moves ? 0.0 : 1.0);
        m_strength.setKeyValueAt(0.15, 1.0);
        m_strength.setKeyValueAt(0.6, 1.0);
        m_strength.setEndValue(moves ? 0.0 : 1.0);
        m_strength.setDuration(int(flashTime.count()));
        connect(&m_strength, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
        connect(&m_strength, &QVariantAnimation::finished, this, &QObject::deleteLater);
        m_strength.start();
        raise();
        show();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor ink = focusInk(palette());
        painter.setOpacity(m_strength.currentValue().toDouble());
        painter.setPen(QPen(ink, 3));
        ink.setAlphaF(0.12F);
        painter.setBrush(ink);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 6, 6);
    }

private:
    QVariantAnimation m_strength;
};

} // namespace

QString notAvailableWhile(const QString &option, const QString &choice)
{
    return ControlText::tr("Not available while “%1” is “%2”.").arg(option, choice);
}

QString bareText(QString text)
{
    const qsizetype key = Mnemonics::placeOfKey(text);
    const bool isBracketed = key > 1 && key + 1 < text.size() && text.at(key - 2) == QLatin1Char('(') &&
                             text.at(key + 1) == QLatin1Char(')');
    if (isBracketed)
        text.remove(key - 2, 4);
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(0xff1a)))
        text.chop(1);
    return text.trimmed();
}

QString keywordOf(const QWidget *control)
{
    if (const auto *box = qobject_cast<const platform::ChoiceBox *>(control))
        return box->optionKeyword();
    return platform::keyPathSetBy(control);
}

QList<PageControl> controlsOf(const QWidget *page)
{
    const QList<QLabel *> labels = page->findChildren<QLabel *>();
    QList<PageControl> controls;
    for (QWidget *control : page->findChildren<QWidget *>()) {
        const bool isGone = control->isHidden() && control->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (!(control->focusPolicy() & Qt::TabFocus) || isGone || isPart(control))
            continue;
        const QString name = nameOf(control, labels);
        if (!name.isEmpty())
            controls.append({control, name, keywordOf(control)});
    }
    return controls;
}

QWidget *findControl(const QWidget *page, const QString &keyword, const QString &name)
{
    const QString wanted = searchable(name);
    QWidget *named = nullptr;
    for (const PageControl &found : controlsOf(page)) {
        if (!keyword.isEmpty() && found.keyword == keyword)
            return found.control;
        if (!named && searchable(found.name) == wanted)
            named = found.control;
    }
    if (!named && !keyword.isEmpty())
        named = page->findChild<QWidget *>(keyword);
    return named;
}

void flash(QWidget *control)
{
    QWidget *page = control->parentWidget();
    const QRect place = control->geometry().adjusted(-flashMargin, -flashMargin, flashMargin, flashMargin);
    new FlashRing(page, place);
}

} // namespace host
