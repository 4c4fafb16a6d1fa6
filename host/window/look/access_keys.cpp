// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/access_keys.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QLabel>

#include <algorithm>

namespace host {

namespace {

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button ? button->text() : QString();
}

void setTextOf(QWidget *widget, const QString &text)
{
    if (auto *label = qobject_cast<QLabel *>(widget))
        label->setText(text);
    else if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setText(text);
}

// Whether the dynamic property is true. property() searches the declared properties first, which takes long;
// this is avoided for widgets without dynamic properties, which are most.
bool isMarked(const QWidget *widget, const char *property)
{
    return !widget->dynamicPropertyNames().isEmpty() && widget->property(property).toBool();
}

bool hasLetter(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// The control that is operated by the key of a label or button.
QWidget *usedBy(QWidget *widget)
{
    const auto *label = qobject_cast<QLabel *>(widget);
    return label && label->buddy() ? label->buddy() : widget;
}

// Whether the widget itself is enabled. A page that is disabled as a whole keeps its keys.
bool isUsable(QWidget *widget)
{
    const QWidget *control = usedBy(widget);
    return control->isEnabledTo(control->parentWidget());
}

// Labels of fields, and buttons, that should have an access key, including hidden ones.
QList<QWidget *> keyedWidgets(QWidget *part)
{
    QList<QWidget *> found;
    QList<QWidget *> all = part->findChildren<QWidget *>();
    all.prepend(part);
    for (QWidget *widget : std::as_const(all)) {
        const auto *label = qobject_cast<QLabel *>(widget);
        const bool isNamed =
            label ? label->buddy() != nullptr : qobject_cast<QAbstractButton *>(widget) != nullptr;
        if (isNamed && !isMarked(widget, AccessKeys::keylessProperty) && hasLetter(textOf(widget)))
            found.append(widget);
    }
    return found;
}

// The difference between the width of a text as drawn and as measured, in pixels. Qt measures the text with
// kerning, as in "Tw", but draws the character of the access key separately, without it.
int lostKerning(const QFontMetrics &metrics, const QString &shown)
{
    const qsizetype key = Mnemonics::placeOfKey(shown);
    if (key < 0)
        return 0;
    const QString before = shown.left(key - 1);
    const QString after = shown.mid(key + 1);
    const int apart = metrics.horizontalAdvance(before) + metrics.horizontalAdvance(QString(shown.at(key))) +
                      metrics.horizontalAdvance(after);
    return qMax(0, apart - metrics.horizontalAdvance(before + shown.at(key) + after));
}

} // namespace

AccessKeys::AccessKeys(QWidget *window, const QList<QWidget *> &parts, AccessKeys *others)
    : QObject(window), m_window(window), m_parts(parts), m_others(others)
{
    if (m_others)
        m_others->m_follower = this;
}

QString AccessKeys::ownText(QWidget *widget) const
{
    const QString text = textOf(widget);
    const auto known = m_texts.find(widget);
    return known != m_texts.end() && known->shown == text ? known->own : text;
}

void AccessKeys::assign()
{
    m_queued = false;
    QHash<QWidget *, Texts> texts;
    texts.reserve(m_texts.size());
    QList<QWidget *> usable, yielding, withOtherKey, unusable;
    for (QWidget *part : std::as_const(m_parts)) {
        for (QWidget *widget : keyedWidgets(part)) {
            if (texts.contains(widget))
                continue;
            usedBy(widget)->installEventFilter(this);
            widget->installEventFilter(this);
            Texts known = m_texts.value(widget);
            known.own = ownText(widget);
            // Hidden widgets are not changed: a changed text is an event for a screen reader.
            const bool isShown = widget->isVisibleTo(m_window);
            known.shown = isShown ? known.own : textOf(widget);
            texts.insert(widget, known);
            if (isShown)
                (!isUsable(widget)                    ? unusable
                 : isMarked(widget, otherKeyProperty) ? withOtherKey
                 : isMarked(widget, yieldingProperty) ? yielding
                                                      : usable)
                    .append(widget);
        }
    }
    Mnemonics keys = m_others ? m_others->m_groups.back().keys : Mnemonics();
    bool isKnown = !std::exchange(m_isOutdated, false); // so far the texts are those of the last call
    auto group = m_groups.begin();
    for (const QList<QWidget *> &widgets : {usable + yielding, withOtherKey, unusable}) {
        QStringList own;
        for (QWidget *widget : widgets)
            own.append(texts[widget].own);
        isKnown = isKnown && own == group->own;
        if (!isKnown) {
            const QStringList shown = keys.assign(own);
            *group = {own, shown, keys};
        }
        keys = group->keys;
        for (qsizetype i = 0; i < widgets.size(); ++i)
            texts[widgets.at(i)].shown = group->shown.at(i);
        ++group;
    }
    bool isWider = false;
    for (auto it = texts.begin(); it != texts.end(); ++it) {
        if (textOf(it.key()) != it->shown)
            setTextOf(it.key(), it->shown);
        isWider |= reserveWidth(it.key(), &*it);
    }
    m_texts = texts;
    if (isWider && m_window->isVisible()) // so that nothing moves after the first paint
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (m_follower) {
        m_follower->m_isOutdated |= !isKnown;
        m_follower->assign();
    }
}

// A label without a fixed width gets the width in which its text is drawn. True if the width has changed.
bool AccessKeys::reserveWidth(QWidget *widget, Texts *texts)
{
    auto *label = qobject_cast<QLabel *>(widget);
    if (!label || label->wordWrap() || (label->minimumWidth() > 0 && !texts->isReserved))
        return false;
    if (label->text() == texts->measured && label->font() == texts->font)
        return false;
    texts->measured = label->text();
    texts->font = label->font();
    const int lost = lostKerning(label->fontMetrics(), label->text());
    texts->isReserved = lost > 0;
    label->setMinimumWidth(lost > 0 ? label->sizeHint().width() + lost : 0);
    return texts->isReserved;
}

// Assigns the keys when control returns to the event loop, once for any number of calls.
void AccessKeys::assignLater()
{
    if (!std::exchange(m_queued, true))
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_queued) // no call of assign() since
                    assign();
            },
            Qt::QueuedConnection);
}

bool AccessKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent ||
        event->type() == QEvent::Show || event->type() == QEvent::Hide ||
        event->type() == QEvent::EnabledChange)
        assignLater();
    return QObject::eventFilter(watched, event);
}

} // namespace host
