#include "automation/watch_list.hpp"

#include "automation/rpc_error.hpp"

#include <algorithm>
#include <utility>

namespace brinewright {

namespace {

constexpr std::size_t Most_Watches = 1000;

auto Find_Watch(Automation_Core& Core, const std::string& Path) {
    return std::find_if(Core.Watches.begin(), Core.Watches.end(),
                        [&](const Watch& W) { return W.Path == Path; });
}

// A window that was opened again is another one with other controls.
void Renew(const Automation_Target& Target, Watch& Watched) {
    const std::shared_ptr<Form> Held = Watched.Where.Window.lock();
    if (Held && Held->Loaded) return;
    const std::string_view Path = Watched.Path;
    if (!Target.Windows.Find_Form(Path.substr(0, Path.find('.')))) return;
    try {
        Watched.Where = Find_Address(Target, Path);
    } catch (const Rpc_Error&) {
        // The window has other controls this time: the value stays null.
    }
}

bool Take_Change(const Automation_Target& Target, Watch& Watched, bool Windows_Changed) {
    const bool In_Window =
        Watched.Where.Kind == Address_Kind::Form || Watched.Where.Kind == Address_Kind::Control;
    if (In_Window && !Windows_Changed) return false;
    if (In_Window) Renew(Target, Watched);
    Json Now = Address_Json(Target, Watched.Where);
    if (Now == Watched.Last) return false;
    Watched.Last = std::move(Now);
    return true;
}

void Look(Automation_Core& Core) {
    if (Core.Watches.empty()) return;
    const bool Windows_Changed =
        std::exchange(Core.Seen_Revision, Core.Target.Windows.Revision) != Core.Target.Windows.Revision;
    std::vector<std::string> Lines;
    for (Watch& Watched : Core.Watches)
        if (Take_Change(Core.Target, Watched, Windows_Changed))
            Lines.push_back(
                Json_Line({{"jsonrpc", "2.0"},
                           {"method", "changed"},
                           {"params", {{"path", To_UTF8(Watched.Path)}, {"value", Watched.Last}}}}));
    for (std::string& Line : Lines) {
        if (!Core.Push || !*Core.Push) return; // the peer is gone
        const auto Push = *Core.Push;          // the session may end while it pushes
        Push(std::move(Line));
    }
}

struct Settled_Hook {
    std::weak_ptr<Automation_Core> Core;
    void operator()() const {
        if (const auto Held = Core.lock()) Look(*Held);
    }
};

} // namespace

void Look_When_Settled(const std::shared_ptr<Automation_Core>& Core) {
    auto& Hooks = Core->Target.Windows.On_Settled;
    // Sessions that have ended are taken out here and not when they end, since that may be while the hooks
    // run.
    std::erase_if(Hooks, [](const Handler& Hook) {
        const auto* Ours = Hook.target<Settled_Hook>();
        return Ours && Ours->Core.expired();
    });
    Hooks.push_back(Settled_Hook{Core});
}

Json Add_Watch(Automation_Core& Core, const std::string& Path) {
    Address Where = Find_Address(Core.Target, Path);
    Json Now = Address_Json(Core.Target, Where);
    const auto Found = Find_Watch(Core, Path);
    if (Found != Core.Watches.end()) return Found->Last = std::move(Now);
    if (Core.Watches.size() >= Most_Watches)
        throw Rpc_Error{rpc_code::Refused, "Too many watches: " + std::to_string(Most_Watches) + " at most"};
    Core.Watches.push_back({Path, std::move(Where), Now});
    return Now;
}

void Remove_Watch(Automation_Core& Core, const std::string& Path) {
    if (Path.empty()) return Core.Watches.clear();
    const auto Found = Find_Watch(Core, Path);
    if (Found == Core.Watches.end()) throw Rpc_Error{rpc_code::Unknown_Path, Path + " is not watched"};
    Core.Watches.erase(Found);
}

} // namespace brinewright
