// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/choice_box.h"

#include "platform/wheel_guard.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace platform {

QSize sizeForLength(const QComboBox &box, const QStyleOptionComboBox &option, const QSize &icon)
{
    constexpr int margin = 2;  // above and below the text together, in pixels; as in QComboBox
    constexpr int iconGap = 4; // between an icon and the text
    constexpr int leastHeight = 14;
    const QFontMetrics metrics = box.fontMetrics();
    const int text = box.minimumContentsLength() * metrics.horizontalAdvance(QLatin1Char('X'));
    const QSize contents(text + icon.width() + iconGap,
                         std::max({metrics.height(), icon.height(), leastHeight}) + margin);
    return box.style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, &box);
}

void elideCurrentText(const QComboBox &box, QStyleOptionComboBox *option)
{
    constexpr int inset = 1; // pixels on each side of the text, as in styles
    constexpr int iconGap = 4;
    const QRect place =
        box.style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, &box);
    const int icon = option->currentIcon.isNull() ? 0 : option->iconSize.width() + iconGap;
    const int room = place.width() - 2 * inset - icon;
    if (option->fontMetrics.horizontalAdvance(option->currentText) >
        room) // avoids loading Qt code in most windows
        option->currentText = option->fontMetrics.elidedText(option->currentText, Qt::ElideRight, room);
}

ChoiceBox::ChoiceBox(QWidget *parent) : QComboBox(parent)
{
    guardFromWheel(this);
}

ChoiceBox::~ChoiceBox() = default;

void ChoiceBox::setObstacle(int index, const QString &reason)
{
    auto *item = static_cast<QStandardItemModel *>(model())->item(index);
    if (item->isEnabled() == reason.isEmpty() &&
        (reason.isEmpty() || item->accessibleDescription() == reason))
        return;
    item->setEnabled(reason.isEmpty());
    item->setAccessibleDescription(reason);
    // Tooltips detect markup heuristically, so pass the plain text as markup with the same meaning.
    item->setToolTip(reason.isEmpty() ? QString() : Qt::convertFromPlainText(reason, Qt::WhiteSpaceNormal));
}

bool ChoiceBox::isItemEnabled(int index) const
{
    return (model()->flags(model()->index(index, modelColumn(), rootModelIndex())) & Qt::ItemIsEnabled) != 0;
}

void ChoiceBox::showPopup()
{
    QComboBox::showPopup();
    // The list is created when it is first shown, with event filters of its own, which must run after this
    // one.
    if (!std::exchange(m_listens, true)) {
        view()->installEventFilter(this);
        view()->viewport()->installEventFilter(this);
    }
    m_pressedRow = -1;
}

void ChoiceBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    elideCurrentText(*this, option);
}

bool ChoiceBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_listens && watched == view()) {
        const auto *press = static_cast<QKeyEvent *>(event);
        const int row = (press->modifiers() & ~Qt::KeypadModifier) ? -1 : rowFor(press->key());
        if (row >= 0) {
            showRow(row);
            return true;
        }
    }
    return picksGreyed(watched, event) || QComboBox::eventFilter(watched, event);
}

bool ChoiceBox::picksGreyed(QObject *watched, QEvent *event)
{
    if (!m_listens)
        return false;
    int row = -1;
    if (watched == view() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select)
            row = view()->currentIndex().row();
    } else if (watched == view()->viewport() &&
               (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease)) {
        const int under = view()->indexAt(static_cast<QMouseEvent *>(event)->position().toPoint()).row();
        if (event->type() == QEvent::MouseButtonPress)
            m_pressedRow = under;
        else if (under == std::exchange(m_pressedRow, -1)) // ignores the click that opened the list
            row = under;
    }
    if (row < 0 || isItemEnabled(row))
        return false;
    hidePopup();
    Q_EMIT greyedPicked(row);
    return true;
}

int ChoiceBox::rowFor(int key) const
{
    const int now = view()->currentIndex().row();
    const int last = count() - 1;
    switch (key) {
    case Qt::Key_Up:
        return std::max(0, now - 1);
    case Qt::Key_Down:
        return std::min(last, now + 1);
    case Qt::Key_Home:
        return std::min(0, last);
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

// A disabled item can still be the current item, which is drawn and announced as such.
void ChoiceBox::showRow(int row)
{
    const QModelIndex index = model()->index(row, modelColumn(), rootModelIndex());
    view()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    view()->scrollTo(index);
    const QRect place = view()->visualRect(index);
    const QString why = index.data(Qt::ToolTipRole).toString();
    QToolTip::showText(view()->viewport()->mapToGlobal(place.bottomLeft()), why, view()->viewport(), place);
}

} // namespace platform
