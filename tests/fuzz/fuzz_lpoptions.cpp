// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// A file of presets: read, and with presets added, renamed and deleted. The first line is the name of the
// preset.

#include "host/printing/preset_lines.h"
#include "tests/fuzz/fuzz_support.h"

#include <algorithm>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace host;
    const QByteArray input = bytesOf(data, size);
    const qsizetype end = input.indexOf('\n');
    const QString name = QString::fromUtf8(input.left(end));
    const QByteArray content = end < 0 ? QByteArray() : input.mid(end + 1);
    const QString queue = QStringLiteral("office");

    presetNamesIn(content);
    const QList<Preset> presets = presetsIn(content, queue);
    for (const Preset &preset : presets) {
        const auto named = [&preset](const Preset &other) { return isSamePreset(other.name, preset.name); };
        if (preset.name.isEmpty())
            continue;
        const QList<Preset> left = presetsIn(withoutPreset(content, queue, preset.name), queue);
        requireThat(std::none_of(left.begin(), left.end(), named));
        presetsIn(renamedPreset(content, queue, preset.name, QStringLiteral("renamed")), queue);
    }
    if (!PresetStore::nameProblem(name).isNull())
        return 0;
    const Preset wanted{name, presets.isEmpty() ? QMap<QString, QString>{{QStringLiteral("sides"), name}}
                                                : presets.first().options};
    PrintError error;
    if (const auto with = withPreset(content, queue, wanted, &error)) {
        const QList<Preset> now = presetsIn(*with, queue);
        requireThat(wanted.options.isEmpty() || now.contains(wanted));
    } else {
        requireThat(!error.message.isEmpty());
    }
    return 0;
}
