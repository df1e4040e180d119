#pragma once

#include <array>

/// The panes of the main window, in the order of its design.
enum class PanelId {
    Elements,
    Solvents,
    Solutions,
    Biochemistry,
    Spectroscopy,
    Reactions,
    Calculations,
    Electronics,
    References,
    Polymers,
    Donate,
    SearchResults
};

inline constexpr int PanelCount = 12;

/// A pane's frame and its text in panel 1 of the status bar.
struct PanelName
{
    PanelId panel;
    const char *frame;
    const char *statusText; ///< null for the pane without a command
};

inline constexpr std::array<PanelName, PanelCount> Panels{{
    {PanelId::Elements, "Frametable", "Elements"},
    {PanelId::Solvents, "frmsolv", "Solvents"},
    {PanelId::Solutions, "frmsolution", "Solutions"},
    {PanelId::Biochemistry, "frmbioch", "Biochemistry"},
    {PanelId::Spectroscopy, "frmana", "Spectroscopy"},
    {PanelId::Reactions, "frmrea", "Reactions"},
    {PanelId::Calculations, "Frame2", "Calculations"},
    {PanelId::Electronics, "frmelec", "Electronics"},
    {PanelId::References, "frmbiblio", "References"},
    {PanelId::Polymers, "frmpolym", "Polymers"},
    {PanelId::Donate, "frmdon", "Donate"},
    {PanelId::SearchResults, "frmrech", nullptr},
}};

enum class CommandKind {
    Quit,
    Options,
    ShowPanel,        ///< even if it is shown
    ShowPanelOnce,    ///< unless it is shown
    SolventTab,       ///< the Solvents pane with tab `argument`, from 1
    SpectroscopyMode, ///< the Spectroscopy pane in mode `argument`, from 0, unless it is
    Find,
    About,
    Help,
    Export,
    WebSite,
    CheckVersion,
    Nothing, ///< never enabled
};

struct Command
{
    int id;
    CommandKind kind;
    PanelId panel = PanelId::Elements;
    int argument = 0;
};

/// Commands used outside the table.
namespace CommandId {
inline constexpr int Quit = 1005;
inline constexpr int Find = 1121;
inline constexpr int About = 1122;
inline constexpr int Help = 1123;
inline constexpr int Export = 1124;
inline constexpr int Print = 1125;
inline constexpr int WebSite = 1134;
} // namespace CommandId

/// All commands. Other ids do nothing.
inline constexpr std::array Commands{
    Command{CommandId::Quit, CommandKind::Quit},
    Command{1058, CommandKind::Options},
    Command{1106, CommandKind::ShowPanel, PanelId::Solvents},
    Command{1108, CommandKind::ShowPanel, PanelId::Elements},
    Command{1109, CommandKind::ShowPanel, PanelId::Biochemistry},
    Command{1111, CommandKind::ShowPanelOnce, PanelId::Spectroscopy},
    Command{1113, CommandKind::ShowPanel, PanelId::Solutions},
    Command{1115, CommandKind::SolventTab, PanelId::Solvents, 3},
    Command{1116, CommandKind::SolventTab, PanelId::Solvents, 2},
    Command{1117, CommandKind::SolventTab, PanelId::Solvents, 6},
    Command{1118, CommandKind::SolventTab, PanelId::Solvents, 5},
    Command{1119, CommandKind::SolventTab, PanelId::Solvents, 1},
    Command{1120, CommandKind::ShowPanel, PanelId::Calculations},
    Command{CommandId::Find, CommandKind::Find},
    Command{CommandId::About, CommandKind::About},
    Command{CommandId::Help, CommandKind::Help},
    Command{CommandId::Export, CommandKind::Export},
    Command{CommandId::Print, CommandKind::Nothing},
    Command{1131, CommandKind::ShowPanel, PanelId::Donate},
    Command{1132, CommandKind::ShowPanel, PanelId::References},
    Command{1133, CommandKind::SolventTab, PanelId::Solvents, 4},
    Command{CommandId::WebSite, CommandKind::WebSite},
    Command{1135, CommandKind::CheckVersion},
    Command{1138, CommandKind::ShowPanel, PanelId::Polymers},
    Command{1139, CommandKind::ShowPanelOnce, PanelId::Reactions},
    Command{1141, CommandKind::ShowPanel, PanelId::Electronics},
    Command{1142, CommandKind::SpectroscopyMode, PanelId::Spectroscopy, 0},
    Command{1143, CommandKind::SpectroscopyMode, PanelId::Spectroscopy, 1},
    Command{1144, CommandKind::SpectroscopyMode, PanelId::Spectroscopy, 2},
    Command{1145, CommandKind::SpectroscopyMode, PanelId::Spectroscopy, 3},
};

/// Panes by the start module of the options, 0 to 5. Other values choose none.
inline constexpr std::array StartModules{PanelId::Solvents,     PanelId::Solutions,    PanelId::Elements,
                                         PanelId::Biochemistry, PanelId::Spectroscopy, PanelId::Calculations};

/// Null for an id without a command.
constexpr const Command *findCommand(int id)
{
    for (const Command &command : Commands) {
        if (command.id == id)
            return &command;
    }
    return nullptr;
}
