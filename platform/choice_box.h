// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QComboBox>

class QStyleOptionComboBox;

namespace platform {

// The size of a pop-up with room for its minimumContentsLength() and an icon, independent of its choices.
// `option` has been filled in by initStyleOption(). The size policy of QComboBox with the same meaning would
// build the list of choices, as would QComboBox::setIconSize().
KELMAR_PLATFORM_EXPORT QSize sizeForLength(const QComboBox &box, const QStyleOptionComboBox &option,
                                           const QSize &icon);

// Elides the current text of an option that initStyleOption() has filled in, so that it fits the box. Styles
// would cut it off without an ellipsis.
KELMAR_PLATFORM_EXPORT void elideCurrentText(const QComboBox &box, QStyleOptionComboBox *option);

// A combo box in which items can be greyed out temporarily. In the open list the arrow keys also reach greyed
// items, and the reason is shown and announced to screen readers. Selecting a greyed item changes nothing but
// emits greyedPicked(). Scrolling over a box without the focus never changes it. The items are those of
// QComboBox's own model.
class KELMAR_PLATFORM_EXPORT ChoiceBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ChoiceBox(QWidget *parent = nullptr);
    ~ChoiceBox() override;

    // Greys out an item with a reason in plain text. An empty reason enables it again. The index must be
    // valid.
    void setObstacle(int index, const QString &reason);
    bool isItemEnabled(int index) const;

    // The PPD option that the box sets, for use by the host. Null if the box sets something else.
    const QString &optionKeyword() const { return m_optionKeyword; }
    void setOptionKeyword(const QString &keyword) { m_optionKeyword = keyword; }
    // The choice of an item.
    static constexpr int choiceRole = Qt::UserRole + 1;
    QString choiceKeyword(int index) const { return itemData(index, choiceRole).toString(); }

    void showPopup() override;

Q_SIGNALS:
    // The user has selected a greyed item in the open list, which is now closed. Nothing has changed. A
    // receiver may offer to resolve the obstacle.
    void greyedPicked(int index);

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The row to which an arrow key leads in the open list, greyed or not; -1 for any other key.
    int rowFor(int key) const;
    void showRow(int row);
    // Handles an event of the open list or its viewport. Returns true and emits greyedPicked() if the event
    // selects a greyed item.
    bool picksGreyed(QObject *watched, QEvent *event);

    QString m_optionKeyword;
    bool m_listens = false; // event filters are installed on the list
    int m_pressedRow = -1;  // row in the open list where the mouse button was pressed
};

} // namespace platform
