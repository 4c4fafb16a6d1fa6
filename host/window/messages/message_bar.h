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
class QPushButton;
class QScrollArea;

namespace host {

// A message of the bar. A value; texts are plain text.
struct Message
{
    StatusGlyph::Kind kind = StatusGlyph::Kind::Notice;
    QString title;
    QStringList lines;
    QStringList answers; // labels of buttons; without answers there is one button that closes the bar
    bool operator==(const Message &) const = default;
};

// A bar below the pages that shows a message and its answers. Initially hidden. Long texts scroll. A screen
// reader announces a message once, when it appears. Owned by its window, and controlled by a MessageQueue.
class MessageBar : public QFrame
{
    Q_OBJECT
public:
    using Kind = StatusGlyph::Kind;

    explicit MessageBar(QWidget *parent = nullptr);

    // Shows a message in place of the previous one. Does nothing if it is the same message.
    void showMessage(const Message &message);
    // Hides the bar. If the bar has the focus, it returns to the previous widget.
    void hideMessage();
    Kind kind() const { return m_message.kind; }
    bool isShowing() const { return !isHidden(); }
    QString text() const; // title and lines, for tests and screen readers
    QList<QPushButton *> buttons() const { return m_buttons; }
    // Moves the focus to the first answer. It returns to the previous widget when the bar has been answered.
    void takeFocus();
    // The maximum height of the texts in pixels, above which they scroll.
    void setTextLimit(int pixels);

Q_SIGNALS:
    // An answer was pressed; -1 if the bar was closed. The message stays.
    void answered(int index);
    // The buttons have changed or were removed.
    void buttonsChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class Text;
    void build();
    void addButton(const QString &text, int index);
    void removeButtons();
    void clearRows();
    int room() const;
    void fit();
    void fitButtons();
    void fitTexts();
    void noteFocus(QWidget *old, QWidget *now);
    void giveFocusBack();

    Message m_message;
    // Created with the first message.
    StatusGlyph *m_glyph = nullptr;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_sheet = nullptr; // contains the texts, and is announced to screen readers
    Text *m_title = nullptr;
    Text *m_lines = nullptr;
    QBoxLayout *m_row = nullptr;
    QVBoxLayout *m_buttonRows = nullptr;
    QList<QPushButton *> m_buttons;
    QList<int> m_rowSizes;      // number of buttons in each row
    QPointer<QWidget> m_before; // previous focus widget
    int m_limit = 200;
};

} // namespace host
