// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QLineEdit>
#include <QString>
#include <QVariantMap>

#include <memory>

namespace platform {

class TextField;

// User-info key of a text-change notification that holds the field editor: a QObject * that is a QLineEdit.
KELMAR_PLATFORM_EXPORT extern const QString NSFieldEditor;

// Takes part in the editing of text fields. Stateless, so one instance serves several fields; shared.
class KELMAR_PLATFORM_EXPORT TextFieldDelegate
{
public:
    virtual ~TextFieldDelegate();
    // After each change by the user. `userInfo` holds the field editor under NSFieldEditor.
    virtual void controlTextDidChange(TextField *control, const QVariantMap &userInfo) = 0;
    // Before the text is committed; false keeps the field in editing. May set the control's text.
    virtual bool controlTextShouldEndEditing(TextField *control, QLineEdit *fieldEditor) = 0;

    // The process-wide register of delegates that layouts name. A later one replaces the earlier.
    static void setDelegateForName(std::shared_ptr<TextFieldDelegate> delegate, const QString &name);
    static std::shared_ptr<TextFieldDelegate> delegateForName(const QString &name);
};

// A line edit that commits its text when editing ends: on Return, on losing the focus, and when its window is
// told to end editing. Bind `stringValue`; it keeps the last committed text while the user types.
class KELMAR_PLATFORM_EXPORT TextField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString stringValue READ stringValue WRITE setStringValue NOTIFY stringValueCommitted)
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

    // The window of `view` gives up its first responder: a pending edit anywhere in it is committed, then the
    // focus is dropped. Null is allowed.
    static void resignFirstResponder(QWidget *view);

Q_SIGNALS:
    void stringValueCommitted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void userEdited();

    std::shared_ptr<TextFieldDelegate> m_delegate;
    QString m_stringValue;
    bool m_editing = false;
};

} // namespace platform
