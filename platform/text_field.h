// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QLineEdit>
#include <QString>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace platform {

class TextField;

// User-info key of a text-change notification that holds the field editor: a QObject * that is a QLineEdit.
KELMAR_PLATFORM_EXPORT extern const QString NSFieldEditor;

// Takes part in the editing of text fields. Stateless, so one instance serves several fields; shared.
class KELMAR_PLATFORM_EXPORT TextFieldDelegate
{
public:
    virtual ~TextFieldDelegate();
    // Whether the delegate would leave a text as it is. A change by the user to any other text never comes
    // to be: controlTextDidChange() gets it in a field editor of its own, and the control takes on what the
    // delegate makes of it, so that undoing leads back to what was there before.
    virtual bool acceptsText(const QString &text) const;
    // After each change by the user. `userInfo` holds the field editor under NSFieldEditor.
    virtual void controlTextDidChange(TextField *control, const QVariantMap &userInfo) = 0;
    // Before the text is committed; false keeps the field in editing. May set the control's text.
    virtual bool controlTextShouldEndEditing(TextField *control, QLineEdit *fieldEditor) = 0;

    // The process-wide register of delegates that layouts name. A later one replaces the earlier.
    static void setDelegateForName(std::shared_ptr<TextFieldDelegate> delegate, const QString &name);
    static std::shared_ptr<TextFieldDelegate> delegateForName(const QString &name);
};

// A line edit that commits its text when editing ends: on Return, on losing the focus to another widget, and
// when its window is told to end editing. A Return that ends an edit does nothing else. The click that brings
// the focus selects everything, as the Tab key does. Bind `stringValue`; it keeps the last committed text
// while the user types.
class KELMAR_PLATFORM_EXPORT TextField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString stringValue READ stringValue WRITE setStringValue NOTIFY stringValueCommitted)
    // How many digits it is wide, in its own font; 0 for a line edit's usual width.
    Q_PROPERTY(int columns READ columns WRITE setColumns)
public:
    explicit TextField(QWidget *parent = nullptr);
    ~TextField() override;

    void setDelegate(std::shared_ptr<TextFieldDelegate> delegate);
    QString stringValue() const { return m_stringValue; }
    // Shows and keeps a text without announcing a commit; ends an edit in progress without committing it.
    void setStringValue(const QString &text);
    // True from the user's first change to the commit.
    bool isEditing() const { return m_editing; }
    // Commits what was typed; false when the delegate keeps the field in editing. True at once when not
    // editing.
    bool endEditing();

    int columns() const { return m_columns; }
    void setColumns(int columns);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The window of `view` gives up its first responder, which is the text field being edited: a pending edit
    // anywhere in it is committed, and a field that has the focus for it drops it. A widget without an edit
    // keeps the focus. Null is allowed.
    static void resignFirstResponder(QWidget *view);

Q_SIGNALS:
    void stringValueCommitted();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    class Gate;
    struct Rejected
    {
        QString text;
        int cursor = 0;
    };

    void userEdited();
    // Lets the delegate make something of the text that was not let in.
    void handleRejected();
    void replaceByUser(const QString &text, int cursor);

    std::shared_ptr<TextFieldDelegate> m_delegate;
    QString m_stringValue;
    std::optional<Rejected> m_rejected;
    int m_columns = 0;
    bool m_editing = false;
    bool m_selectsOnRelease = false;
};

} // namespace platform
