#pragma once

#include "core/desktop.h"

/// The real desktop, by Qt.
class QtDesktop final : public Desktop
{
public:
    Answer messageBox(const QString &text, int style) override;
    QString saveFile(const SaveRequest &request) override;
    void openTarget(const QString &target) override;
    Viewer viewerOf(const QString &path) override;
    void beep() override;
    void pause(int milliseconds) override;
    [[noreturn]] void endProcess(int status) override;
};
