#include "ProfileIniLayout.h"

#include <array>

#include "OptionCatalogue.h"

namespace coinlight {

namespace {

using Kind = ProfileIniStep::Kind;

constexpr ProfileIniStep Heading(std::string_view text) {
    return {Kind::Heading, text, {}};
}
constexpr ProfileIniStep Section(std::string_view name) {
    return {Kind::Section, name, {}};
}
constexpr ProfileIniStep Rows(std::string_view first, std::string_view last) {
    return {Kind::Rows, first, last};
}
constexpr ProfileIniStep Row(std::string_view option) {
    return {Kind::Rows, option, option};
}
constexpr ProfileIniStep Fixed(std::string_view option, std::string_view value) {
    return {Kind::Fixed, option, value};
}
constexpr ProfileIniStep Bare(std::string_view option) {
    return {Kind::Bare, option, {}};
}

using namespace section;

constexpr std::array kLayout = std::to_array<ProfileIniStep>({
    Heading("# CORE PERFORMANCE OPTIONS"),
    Row("autoframeskip"),
    Fixed("seconds_to_run", "0"),
    Rows("throttle", "lowlatency"),
    Heading("# CORE RENDER OPTIONS"),
    Section(kCoreRender),
    Heading("# CORE ROTATION OPTIONS"),
    Section(kCoreRotation),
    Heading("# CORE ARTWORK OPTIONS"),
    Section(kCoreArtwork),
    Fixed("artwork_font", "default"),
    Heading("# CORE SCREEN OPTIONS"),
    Rows("brightness", "gamma"),
    Fixed("pause_brightness", "0.65"),
    Row("effect"),
    Heading("# CORE VECTOR OPTIONS"),
    Section(kCoreVector),
    Heading("# CORE SOUND OPTIONS"),
    Section(kCoreSound),
    Heading("# CORE INPUT OPTIONS"),
    Fixed("coin_lockout", "1"),
    Rows("ctrlr", "steadykey"),
    Fixed("ui_active", "0"),
    Fixed("joystick_map", "auto"),
    Rows("joystick_deadzone", "joystick_contradictory"),
    Fixed("coin_impulse", "0"),
    Heading("# CORE INPUT AUTOMATIC ENABLE OPTIONS"),
    Section(kCoreInputAutomaticEnable),
    Heading("# CORE DEBUGGING OPTIONS"),
    Fixed("verbose", "0"),
    Fixed("log", "0"),
    Fixed("oslog", "0"),
    Fixed("debug", "0"),
    Fixed("update_in_pause", "0"),
    Bare("debugscript"),
    Fixed("debuglog", "0"),
    Heading("# CORE COMM OPTIONS"),
    Fixed("comm_localhost", "0.0.0.0"),
    Fixed("comm_localport", "15112"),
    Fixed("comm_remotehost", "127.0.0.1"),
    Fixed("comm_remoteport", "15112"),
    Fixed("comm_framesync", "0"),
    Heading("# CORE MISC OPTIONS"),
    Fixed("drc", "1"),
    Fixed("drc_rwx", "1"),
    Fixed("drc_use_c", "0"),
    Fixed("drc_log_uml", "0"),
    Fixed("drc_log_native", "0"),
    Row("bios"),
    Rows("cheat", "skip_gameinfo"),
    Row("uifont"),
    Fixed("ui", "cabinet"),
    Bare("ramsize"),
    Row("confirm_quit"),
    Fixed("ui_mouse", "1"),
    Row("language"),
    Row("nvram_save"),
    Heading("# SCRIPTING OPTIONS"),
    Bare("autoboot_command"),
    Fixed("autoboot_delay", "0"),
    Bare("autoboot_script"),
    Fixed("console", "0"),
    Section(kScripting),
    Heading("# HTTP SERVER OPTIONS"),
    Fixed("http", "0"),
    Fixed("http_port", "8080"),
    Fixed("http_root", "web"),
    Heading("# OSD INPUT MAPPING OPTIONS"),
    Section(kOSDInputMapping),
    Fixed("background_input", "0"),
    Heading("# OSD FONT OPTIONS"),
    Fixed("uifontprovider", "auto"),
    Heading("# OSD OUTPUT OPTIONS"),
    Fixed("output", "auto"),
    Heading("# OSD INPUT OPTIONS"),
    Section(kOSDInput),
    Heading("# OSD DEBUGGING OPTIONS"),
    Fixed("debugger", "auto"),
    Fixed("debugger_host", "localhost"),
    Fixed("debugger_port", "23946"),
    Fixed("debugger_font", "auto"),
    Fixed("debugger_font_size", "0"),
    Fixed("watchdog", "0"),
    Heading("# OSD PERFORMANCE OPTIONS"),
    Section(kOSDPerformance),
    Fixed("bench", "0"),
    Heading("# OSD VIDEO OPTIONS"),
    Section(kOSDVideo),
    Heading("# OSD PER-WINDOW VIDEO OPTIONS"),
    Section(kOSDPerWindowVideo),
    Heading("# OSD FULL SCREEN OPTIONS"),
    Section(kOSDFullScreen),
    Heading("# OSD ACCELERATED VIDEO OPTIONS"),
    Section(kOSDAcceleratedVideo),
    // Only the first four shaders of each kind are offered.
    Heading("# OpenGL-SPECIFIC OPTIONS"),
    Rows("gl_forcepow2texture", "glsl_shader_mame3"),
    Fixed("glsl_shader_mame4", "none"),
    Fixed("glsl_shader_mame5", "none"),
    Fixed("glsl_shader_mame6", "none"),
    Fixed("glsl_shader_mame7", "none"),
    Fixed("glsl_shader_mame8", "none"),
    Fixed("glsl_shader_mame9", "none"),
    Rows("glsl_shader_screen0", "glsl_shader_screen3"),
    Fixed("glsl_shader_screen4", "none"),
    Fixed("glsl_shader_screen5", "none"),
    Fixed("glsl_shader_screen6", "none"),
    Fixed("glsl_shader_screen7", "none"),
    Fixed("glsl_shader_screen8", "none"),
    Fixed("glsl_shader_screen9", "none"),
    Heading("# OSD SOUND OPTIONS"),
    Section(kOSDSound),
    Heading("# OSD MIDI OPTIONS"),
    Fixed("midiprovider", "auto"),
    Heading("# OSD EMULATED NETWORKING OPTIONS"),
    Fixed("networkprovider", "auto"),
    Heading("# BGFX POST-PROCESSING OPTIONS"),
    Rows("bgfx_path", "bgfx_backend"),
    Fixed("bgfx_debug", "0"),
    Rows("bgfx_screen_chains", "bgfx_avi_name"),
    Heading("# WINDOWS PERFORMANCE OPTIONS"),
    Section(kWindowsPerformance),
    Fixed("profile", "0"),
    Heading("# WINDOWS VIDEO OPTIONS"),
    Bare("attach_window"),
    Heading("# DIRECT3D POST-PROCESSING OPTIONS"),
    Rows("hlsl_enable", "hlsl_oversampling"),
    Fixed("hlsl_write", "auto"),
    Rows("hlsl_snap_width", "chroma_y_gain"),
    Heading("# NTSC POST-PROCESSING OPTIONS"),
    Section(kNTSCPostProcessing),
    Heading("# VECTOR POST-PROCESSING OPTIONS"),
    Section(kVectorPostProcessing),
    Heading("# BLOOM POST-PROCESSING OPTIONS"),
    Section(kBloomPostProcessing),
    Heading("# FULL SCREEN OPTIONS"),
    Section(kFullScreen),
    Heading("# INPUT DEVICE OPTIONS"),
    Section(kInputDevice),
    Heading("# FRONTEND COMMAND OPTIONS"),
    Fixed("dtd", "0"),
});

} // namespace

std::span<const ProfileIniStep> ProfileIniLayout() {
    return kLayout;
}

} // namespace coinlight
