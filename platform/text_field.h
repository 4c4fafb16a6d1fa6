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

// User-info key of the field editor in a text-change notification: a QObject * to a QLineEdit.
KELMAR_PLATFORM_EXPORT extern const QString NSFieldEditor;

// Controls the editing of text fields. Stateless and shared, so one instance can serve several fields.
class KELMAR_PLATFORM_EXPORT TextFieldDelegate
{
public:
    virtual ~TextFieldDelegate();
    // Whether the delegate accepts a text unchanged. The field does not take over any other input of the
    // user. Instead, controlTextDidChange() receives the input in a separate field editor, and the control
    // takes over the delegate's result, so that undo leads back to the previous text.
    virtual bool acceptsText(const QString &text) const;
    // Called after each change by the user. `userInfo` holds the field editor under NSFieldEditor.
    virtual void controlTextDidChange(TextField *control, const QVariantMap &userInfo) = 0;
    // Called before the text is committed; false keeps the field in editing. May set the control's text.
    virtual bool controlTextShouldEndEditing(TextField *control, QLineEdit *fieldEditor) = 0;

    // The process-wide registry of delegates for use in layouts. A later registration replaces an earlier
    // one.
    static void setDelegateForName(std::shared_ptr<TextFieldDelegate> delegate, const QString &name);
    static std::shared_ptr<TextFieldDelegate> delegateForName(const QString &name);
};

// A line edit that commits its text when editing ends: on Return, when the focus moves to another widget, and
// when its window is asked to end editing. A Return that ends an edit has no other effect. Clicking into the
// field selects the whole text, as the Tab key does. Bind `stringValue`; it keeps the last committed text
// while the user types.
class KELMAR_PLATFORM_EXPORT TextField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString stringValue READ stringValue WRITE setStringValue NOTIFY stringValueCommitted)
    // The width in digits of the field's font; 0 for the usual width of a line edit.
    Q_PROPERTY(int columns READ columns WRITE setColumns)
public:
    explicit TextField(QWidget *parent = nullptr);
    ~TextField() override;

    void setDelegate(std::shared_ptr<TextFieldDelegate> delegate);
    QString stringValue() const { return m_stringValue; }
    // Sets the text without emitting a commit; discards an edit in progress.
    void setStringValue(const QString &text);
    // True from the user's first change until the commit.
    bool isEditing() const { return m_editing; }
    // Commits the input; false if the delegate keeps the field in editing. Returns true at once if the field
    // is not being edited.
    bool endEditing();

    int columns() const { return m_columns; }
    void setColumns(int columns);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Commits pending edits in the window of `view`, which may be null. If an edited field has the focus, the
    // focus is cleared when the field has been committed; other widgets keep it.
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
    // Lets the delegate process input that was not accepted.
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
