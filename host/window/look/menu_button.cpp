// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/menu_button.h"

#include <QStyle>
#include <QStyleOptionButton>

#include <utility>

namespace host {

namespace {

constexpr int sideAir = 12;    // pixels on both sides of the text together
constexpr int leastChars = 40; // of average width; a narrow button may elide a longer text to this length

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
    QSize hint = QPushButton::sizeHint();
    hint.rwidth() += sideAir;
    if (menu())
        return hint;
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect.setSize(hint);
    hint.rwidth() += style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
    return hint;
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
    // In a narrow button the end of the text is elided, instead of both sides being cut off; this may include
    // the access key.
    const int room = width() - sideAir - style()->pixelMetric(QStyle::PM_MenuButtonIndicator, option, this);
    if (option->fontMetrics.horizontalAdvance(option->text) > room)
        option->text =
            option->fontMetrics.elidedText(option->text, Qt::ElideRight, room, Qt::TextShowMnemonic);
}

void MenuButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    if (!std::exchange(m_wasPainted, true))
        QMetaObject::invokeMethod(this, &MenuButton::wantMenu, Qt::QueuedConnection);
}

void MenuButton::wantMenu()
{
    if (!menu())
        Q_EMIT menuWanted();
}

} // namespace host
