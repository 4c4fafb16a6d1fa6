// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace host {

// Asks for the name of a preset, and shows at once why a name is not valid. Deletes itself when it is closed.
class PresetDialog : public QDialog
{
    Q_OBJECT
public:
    enum class Purpose { Save, Rename };

    // `taken` contains the names of existing presets. `offersSecrets` offers to store codes.
    PresetDialog(Purpose purpose, const QString &name, const QStringList &taken, bool offersSecrets,
                 QWidget *parent);
    QString name() const;
    bool keepsSecrets() const;

private:
    void check();

    Purpose m_purpose;
    QString m_earlierName;
    QStringList m_taken;
    QLineEdit *m_name;
    QLabel *m_problem;
    QCheckBox *m_secrets;
    QPushButton *m_ok;
};

} // namespace host
