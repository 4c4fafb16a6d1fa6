// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/menu_button.h"

#include <QAccessible>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <utility>

namespace host {

namespace {

constexpr int sideAir = 12;    // pixels on both sides of the text together, in addition to those of the style
constexpr int leastChars = 24; // of average width; a button for a longer text may be narrowed to this width

} // namespace

MenuButton::MenuButton(QWidget *parent) : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(this, &QPushButton::pressed, this, [this] {
        if (menu())
            return; // the button opens the menu itself
        wantMenu();
        showMenu();
    });
}

QSize MenuButton::sizeHint() const
{
    return textSizeHint().grownBy({sideAir / 2, 0, sideAir / 2, 0});
}

// The smallest size in which the style draws the whole text and the arrow, whether or not there is a menu
// yet.
QSize MenuButton::textSizeHint() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QSize size = fontMetrics().size(Qt::TextShowMnemonic, text());
    option.rect.setSize(size);
    size.rwidth() += style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, size, this);
}

QSize MenuButton::minimumSizeHint() const
{
    const QSize hint = sizeHint();
    return {qMin(hint.width(), leastChars * fontMetrics().averageCharWidth()), hint.height()};
}

void MenuButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    option->features |= QStyleOptionButton::HasMenu;
}

// In a narrow button the end of the text is elided, instead of both sides being cut off; this may include the
// access key. The size hint does not depend on the elided text.
void MenuButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int missing = textSizeHint().width() - width();
    if (missing > 0) {
        const int room = fontMetrics().size(Qt::TextShowMnemonic, text()).width() - missing;
        option.text = fontMetrics().elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
    }
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    if (!std::exchange(m_wasPainted, true) && QAccessible::isActive())
        QMetaObject::invokeMethod(this, &MenuButton::wantMenu, Qt::QueuedConnection);
}

void MenuButton::focusInEvent(QFocusEvent *event)
{
    wantMenu(); // before the event is reported to a screen reader
    QPushButton::focusInEvent(event);
}

void MenuButton::wantMenu()
{
    if (!menu())
        Q_EMIT menuWanted();
}

} // namespace host
