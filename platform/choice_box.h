// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QComboBox>

class QStyleOptionComboBox;

namespace platform {

// The size of a pop-up with room for its minimumContentsLength() and an icon, whatever its choices are;
// `option` is what its initStyleOption() says. The policy of QComboBox that means the same builds the list of
// choices for that, and so does QComboBox::setIconSize().
KELMAR_PLATFORM_EXPORT QSize sizeForLength(const QComboBox &box, const QStyleOptionComboBox &option,
                                           const QSize &icon);

// Shortens the current text of an option that initStyleOption() has filled in to what its box shows of it,
// with an ellipsis; styles cut it off.
KELMAR_PLATFORM_EXPORT void elideCurrentText(const QComboBox &box, QStyleOptionComboBox *option);

// A list of choices of which some may be greyed for now. In the open list the arrow keys reach those, too,
// and says why, also to a screen reader; choosing one changes nothing, but is told.
// Scrolling past the box never changes it. Its items are those of QComboBox's own model.
class KELMAR_PLATFORM_EXPORT ChoiceBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ChoiceBox(QWidget *parent = nullptr);
    ~ChoiceBox() override;

    // Greys an item and says why in plain text; an empty reason frees it. The index must be one of an item.
    void setObstacle(int index, const QString &reason);
    bool isItemEnabled(int index) const;

    // The PPD option that the box sets, by which a host finds it; null for a box of something else.
    const QString &optionKeyword() const { return m_optionKeyword; }
    void setOptionKeyword(const QString &keyword) { m_optionKeyword = keyword; }
    // Of an item: the choice that it stands for.
    static constexpr int choiceRole = Qt::UserRole + 1;
    QString choiceKeyword(int index) const { return itemData(index, choiceRole).toString(); }

    void showPopup() override;

Q_SIGNALS:
    // The user has picked a greyed item in the open list, which is closed. Nothing has changed; the receiver
    // that knows what stands in the way may offer to clear it.
    void greyedPicked(int index);

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    // Only a box with the focus turns with the wheel; over any other the wheel scrolls what the box is in.
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The row an arrow key leads to in the open list, greyed or not; -1 for any other key.
    int rowFor(int key) const;
    void showRow(int row);
    // Whether an event of the open list, or of what it is drawn on, picks a greyed item; tells that it does.
    bool picksGreyed(QObject *watched, QEvent *event);

    QString m_optionKeyword;
    bool m_listens = false; // to its list
    int m_pressedRow = -1;  // in the open list
};

} // namespace platform
