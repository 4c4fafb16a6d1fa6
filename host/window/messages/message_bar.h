// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/window/look/status_glyph.h"

#include <QFrame>
#include <QPointer>
#include <QString>
#include <QStringList>

class QBoxLayout;
class QVBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace host {

// What the bar shows. A value; texts are plain text.
struct Message
{
    StatusGlyph::Kind kind = StatusGlyph::Kind::Notice;
    QString title;
    QStringList lines;
    QStringList answers; // become buttons; without any there is one that closes the bar
    bool operator==(const Message &) const = default;
};

// A bar under the pages that shows a message and its answers. Hidden until then. Texts scroll where they are
// long; a screen reader announces a message once, when it appears. MessageQueue decides what is shown.
class MessageBar : public QFrame
{
    Q_OBJECT
public:
    using Kind = StatusGlyph::Kind;

    explicit MessageBar(QWidget *parent = nullptr);

    // Shows a message in place of the one before; the same one stays as it is.
    void showMessage(const Message &message);
    // Hides the bar. The keyboard goes back to where it was before it came here.
    void hideMessage();
    Kind kind() const { return m_message.kind; }
    bool isShowing() const { return !isHidden(); }
    QString text() const; // title and lines, for tests and screen readers
    QList<QPushButton *> buttons() const { return m_buttons; }
    // The keyboard goes to the first answer, and back to where it was once the bar has been answered.
    void takeFocus();
    // How high the texts may be, in pixels, before they scroll.
    void setTextLimit(int pixels);

Q_SIGNALS:
    // Which answer was pressed, or -1 for closing the bar. The message stays.
    void answered(int index);
    // Its buttons are others than before, or gone.
    void buttonsChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void addButton(const QString &text, int index);
    void removeButtons();
    void clearRows();
    void fitButtons();
    void fitTexts();
    void noteFocus(QWidget *old, QWidget *now);
    void giveFocusBack();

    Message m_message;
    // Made with the first message.
    StatusGlyph *m_glyph = nullptr;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_sheet = nullptr; // holds the texts; what a screen reader announces
    QLabel *m_title = nullptr;
    QLabel *m_lines = nullptr;
    QBoxLayout *m_row = nullptr;
    QVBoxLayout *m_buttonRows = nullptr;
    QList<QPushButton *> m_buttons;
    QList<int> m_rowSizes;      // how many of them are in each row
    QPointer<QWidget> m_before; // had the focus before it came here
    int m_limit = 200;
};

} // namespace host
