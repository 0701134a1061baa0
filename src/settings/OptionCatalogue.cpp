#include "OptionCatalogue.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <unordered_map>

#include "core/ProfileDocument.h"

namespace coinlight {

namespace {

using namespace section;
using enum OptionKind;
using enum IniRule;
using enum SaveRule;

// The defaults are what the settings screens call MAME's defaults: a profile that holds
// only them is not worth keeping. Values are the texts the controls show.
constexpr std::array kCatalogue = std::to_array<OptionRow>({
    {kCorePerformance, "Frame Skip", "cboFrameSkip", Combo, "None", "autoframeskip frameskip",
     FrameSkip},
    {kCorePerformance, "Throttle", "chkThrottle", Check, "1", "throttle", Copy},
    {kCorePerformance, "Sleep", "chkSleep", Check, "1", "sleep", Copy},
    {kCorePerformance, "Speed", "cboSpeed", Combo, "100%", "speed", Speed},
    {kCorePerformance, "Refresh Speed", "chkRefreshSpeed", Check, "0", "refreshspeed", Copy},
    {kCorePerformance, "Low Latency", "chkLowLatency", Check, "0", "lowlatency", Copy},
    {kCoreRender, "Keep Aspect", "chkKeepAspect", Check, "1", "keepaspect", Copy},
    {kCoreRender, "Uneven Stretch", "chkUnevenStretch", Check, "1", "unevenstretch", Copy},
    {kCoreRender, "Uneven Stretch X", "chkUnevenStretchX", Check, "0", "unevenstretchx", Copy},
    {kCoreRender, "Uneven Stretch Y", "chkUnevenStretchY", Check, "0", "unevenstretchy", Copy},
    {kCoreRender, "Auto Stretch XY", "chkAutoStretchXY", Check, "0", "autostretchxy", Copy},
    {kCoreRender, "Int Overscan", "chkIntOverscan", Check, "0", "intoverscan", Copy},
    {kCoreRender, "Int Scale X", "txtIntScaleX", Text, "0", "intscalex", Copy, EmptyToZero},
    {kCoreRender, "Int Scale Y", "txtIntScaleY", Text, "0", "intscaley", Copy, EmptyToZero},
    {kCoreRotation, "Rotate", "chkRotate", Check, "1", "rotate", Copy},
    {kCoreRotation, "Roll", "cboRoll", Combo, "None", "ror rol autoror autorol", Roll},
    {kCoreRotation, "Flip", "cboFlip", Combo, "None", "flipx flipy", Flip},
    {kCoreArtwork, "Crop", "chkCrop", Check, "0", "artwork_crop", Copy},
    {kCoreArtwork, "Fallback Artwork", "txtFallbackArtwork", Text, "", "fallback_artwork", Lower},
    {kCoreArtwork, "Override Artwork", "txtOverrideArtwork", Text, "", "override_artwork", Lower},
    {kCoreScreen, "Brightness", "cboBrightness", Combo, "1.00", "brightness", Copy},
    {kCoreScreen, "Contrast", "cboContrast", Combo, "1.00", "contrast", Copy},
    {kCoreScreen, "Gamma", "cboGamma", Combo, "1.00", "gamma", Copy},
    {kCoreScreen, "Effect", "cboEffect", Combo, "None", "effect", Lower},
    {kCoreVector, "Beam Min", "cboBeamMin", Combo, "1.00", "beam_width_min", Copy},
    {kCoreVector, "Beam Max", "cboBeamMax", Combo, "1.00", "beam_width_max", Copy},
    {kCoreVector, "Beam Dot Size", "cboBeamDotSize", Combo, "1.00", "beam_dot_size", Copy},
    {kCoreVector, "Beam Weight", "cboBeamWeight", Combo, "0.00", "beam_intensity_weight", Copy},
    {kCoreVector, "Flicker", "cboFlicker", Combo, "0.00", "flicker", Copy},
    {kCoreSound, "Sample Rate", "cboSampleRate", Combo, "48000", "samplerate", Copy},
    {kCoreSound, "Samples", "chkSamples", Check, "1", "samples", Copy},
    {kCoreSound, "Volume", "cboVolume", Combo, "0dB", "volume", Volume},
    {kCoreInput, "Controller Config", "cboController", Combo, "None", "ctrlr", Controller},
    {kCoreInput, "Mouse", "chkMouse", Check, "0", "mouse", Copy},
    {kCoreInput, "Joystick", "chkJoystick", Check, "1", "joystick", Copy},
    {kCoreInput, "Lightgun", "chkLightgun", Check, "0", "lightgun", Copy},
    {kCoreInput, "Multi Keyboard", "chkMultiKey", Check, "0", "multikeyboard", Copy},
    {kCoreInput, "Multi Mouse", "chkMultiMouse", Check, "0", "multimouse", Copy},
    {kCoreInput, "Steady Key", "chkSteadyKey", Check, "0", "steadykey", Copy},
    {kCoreInput, "Joystick Deadzone", "cboDeadzone", Combo, "0.15", "joystick_deadzone", Copy},
    {kCoreInput, "Joystick Saturation", "cboSaturation", Combo, "0.85", "joystick_saturation",
     Copy},
    {kCoreInput, "Joystick Threshold", "cboThreshold", Combo, "0.30", "joystick_threshold", Copy},
    {kCoreInput, "Natural Keyboard", "chkNatural", Check, "0", "natural", Copy},
    {kCoreInput, "Joystick Contradictory", "chkJoyContradict", Check, "0", "joystick_contradictory",
     Copy},
    {kCoreInputAutomaticEnable, "Paddle Device", "cboInputDev(0)", Combo, "Keyboard",
     "paddle_device", Lower},
    {kCoreInputAutomaticEnable, "Adstick Device", "cboInputDev(1)", Combo, "Keyboard",
     "adstick_device", Lower},
    {kCoreInputAutomaticEnable, "Pedal Device", "cboInputDev(2)", Combo, "Keyboard", "pedal_device",
     Lower},
    {kCoreInputAutomaticEnable, "Dial Device", "cboInputDev(3)", Combo, "Keyboard", "dial_device",
     Lower},
    {kCoreInputAutomaticEnable, "Trackball Device", "cboInputDev(4)", Combo, "Keyboard",
     "trackball_device", Lower},
    {kCoreInputAutomaticEnable, "Lightgun Device", "cboInputDev(5)", Combo, "Keyboard",
     "lightgun_device", Lower},
    {kCoreInputAutomaticEnable, "Positional Device", "cboInputDev(6)", Combo, "Keyboard",
     "positional_device", Lower},
    {kCoreInputAutomaticEnable, "Mouse Device", "cboInputDev(7)", Combo, "Mouse", "mouse_device",
     Lower},
    {kCoreMisc, "Cheat", "chkCheat", Check, "0", "cheat", Copy},
    {kCoreMisc, "Skip Game Info", "chkSkipG", Check, "0", "skip_gameinfo", Copy},
    {kCoreMisc, "Confirm Quit", "chkCQuit", Check, "0", "confirm_quit", Copy},
    {kCoreMisc, "NVRAM Save", "chkNVRAMSave", Check, "1", "nvram_save", Copy},
    {kCoreMisc, "BIOS", "cboBIOS", Combo, "Default", "bios", Bios, AsIs, "Bios"},
    {kCoreMisc, "UI Font", "cboUIFont", Combo, "Default", "uifont", Lower},
    {kCoreMisc, "Language", "cboLanguage", Combo, "Default", "language", Language},
    {kScripting, "Plugins", "chkPlugins", Check, "1", "plugins", Copy},
    {kScripting, "Plugin Enable", "txtPluginEnable", Text, "", "plugin", Lower, LowerCase},
    {kScripting, "Plugin Disable", "txtPluginDisable", Text, "", "noplugin", Lower, LowerCase},
    {kOSDInputMapping, "UI Mode Key", "txtUIModeKey", Text, "Auto", "uimodekey", Copy},
    {kOSDInputMapping, "Controller Map", "txtControllerMap", Text, "None", "controller_map", Copy},
    {kOSDInput, "Keyboard Provider", "cboKeyboardProvider", Combo, "Auto", "keyboardprovider",
     Lower},
    {kOSDInput, "Mouse Provider", "cboMouseProvider", Combo, "Auto", "mouseprovider", Lower},
    {kOSDInput, "Lightgun Provider", "cboLightgunProvider", Combo, "Auto", "lightgunprovider",
     Lower},
    {kOSDInput, "Joystick Provider", "cboJoystickProvider", Combo, "Auto", "joystickprovider",
     Lower},
    {kOSDPerformance, "Processors", "cboNumProcessors", Combo, "Auto", "numprocessors", Lower},
    {kOSDVideo, "Video", "cboVideo", Combo, "Auto", "video", Lower},
    {kOSDVideo, "Number Of Screens", "cboNumScreens", Combo, "1", "numscreens", Copy},
    {kOSDVideo, "Window", "chkWindow", Check, "0", "window", Copy},
    {kOSDVideo, "Maximize", "chkMaximize", Check, "1", "maximize", Copy},
    {kOSDVideo, "Wait VSync", "chkWaitVSync", Check, "0", "waitvsync", Copy},
    {kOSDVideo, "Sync Refresh", "chkSyncRefresh", Check, "0", "syncrefresh", Copy},
    {kOSDVideo, "Monitor Provider", "cboMonitorProvider", Combo, "Auto", "monitorprovider", Lower},
    {kOSDPerWindowVideo, "Screens", "cboScreens", Combo, "Auto", "screen", Screen, EmptyToAuto},
    {kOSDPerWindowVideo, "Aspects", "txtAspects", Text, "Auto", "aspect", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Resolutions", "cboResolutions", Combo, "Auto", "resolution", Lower,
     EmptyToAuto},
    {kOSDPerWindowVideo, "Views", "txtViews", Text, "Auto", "view", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Screen0", "cboScreen(0)", Combo, "Auto", "screen0", Lower},
    {kOSDPerWindowVideo, "Aspect0", "txtAspect(0)", Text, "Auto", "aspect0", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Resolution0", "txtResolution(0)", Text, "Auto", "resolution0", Lower,
     EmptyToAuto},
    {kOSDPerWindowVideo, "View0", "txtView(0)", Text, "Auto", "view0", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Screen1", "cboScreen(1)", Combo, "Auto", "screen1", Lower},
    {kOSDPerWindowVideo, "Aspect1", "txtAspect(1)", Text, "Auto", "aspect1", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Resolution1", "txtResolution(1)", Text, "Auto", "resolution1", Lower,
     EmptyToAuto},
    {kOSDPerWindowVideo, "View1", "txtView(1)", Text, "Auto", "view1", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Screen2", "cboScreen(2)", Combo, "Auto", "screen2", Lower},
    {kOSDPerWindowVideo, "Aspect2", "txtAspect(2)", Text, "Auto", "aspect2", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Resolution2", "txtResolution(2)", Text, "Auto", "resolution2", Lower,
     EmptyToAuto},
    {kOSDPerWindowVideo, "View2", "txtView(2)", Text, "Auto", "view2", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Screen3", "cboScreen(3)", Combo, "Auto", "screen3", Lower},
    {kOSDPerWindowVideo, "Aspect3", "txtAspect(3)", Text, "Auto", "aspect3", Lower, EmptyToAuto},
    {kOSDPerWindowVideo, "Resolution3", "txtResolution(3)", Text, "Auto", "resolution3", Lower,
     EmptyToAuto},
    {kOSDPerWindowVideo, "View3", "txtView(3)", Text, "Auto", "view3", Lower, EmptyToAuto},
    {kOSDFullScreen, "Switch Resolution", "chkSwitchRes", Check, "0", "switchres", Copy},
    {kOSDAcceleratedVideo, "Filter", "chkFilter", Check, "1", "filter", Copy},
    {kOSDAcceleratedVideo, "Prescale", "cboPrescale", Combo, "1", "prescale", Lower},
    {kOpenGLSpecific, "Force Power 2 Texture", "chkForcePow2Texture", Check, "0",
     "gl_forcepow2texture", Copy},
    {kOpenGLSpecific, "No Texture Rectangle", "chkNoTextureRect", Check, "0", "gl_notexturerect",
     Copy},
    {kOpenGLSpecific, "VBO", "chkVBO", Check, "1", "gl_vbo", Copy},
    {kOpenGLSpecific, "PBO", "chkPBO", Check, "1", "gl_pbo", Copy},
    {kOpenGLSpecific, "GLSL", "chkGLSL", Check, "0", "gl_glsl", Copy},
    {kOpenGLSpecific, "GLSL Filter", "chkGLSLFilter", Check, "1", "gl_glsl_filter", Copy},
    {kOpenGLSpecific, "GLSL Shader MAME 0", "txtGLSL(0)", Text, "None", "glsl_shader_mame0", Copy,
     EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader MAME 1", "txtGLSL(1)", Text, "None", "glsl_shader_mame1", Copy,
     EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader MAME 2", "txtGLSL(2)", Text, "None", "glsl_shader_mame2", Copy,
     EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader MAME 3", "txtGLSL(3)", Text, "None", "glsl_shader_mame3", Copy,
     EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader Screen 0", "txtGLSL(4)", Text, "None", "glsl_shader_screen0",
     Copy, EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader Screen 1", "txtGLSL(5)", Text, "None", "glsl_shader_screen1",
     Copy, EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader Screen 2", "txtGLSL(6)", Text, "None", "glsl_shader_screen2",
     Copy, EmptyToNone},
    {kOpenGLSpecific, "GLSL Shader Screen 3", "txtGLSL(7)", Text, "None", "glsl_shader_screen3",
     Copy, EmptyToNone},
    {kOSDSound, "Sound", "cboSound", Combo, "Auto", "sound", Lower},
    {kOSDSound, "Audio Latency", "cboAudioLat", Combo, "0.0", "audio_latency", AudioLatency},
    {kBGFXPostProcessing, "BGFX Path", "txtBGFX(0)", Text, "bgfx", "bgfx_path", Path},
    {kBGFXPostProcessing, "BGFX Backend", "cboBGFX(0)", Combo, "Auto", "bgfx_backend", Lower},
    {kBGFXPostProcessing, "BGFX Screen Chains", "txtBGFX(1)", Text, "", "bgfx_screen_chains",
     Lower},
    {kBGFXPostProcessing, "BGFX Shadow Mask", "txtBGFX(2)", Text, "slot-mask.png",
     "bgfx_shadow_mask", Lower},
    {kBGFXPostProcessing, "BGFX LUT", "txtBGFX(3)", Text, "lut-default.png", "bgfx_lut", Lower},
    {kBGFXPostProcessing, "BGFX AVI Name", "txtBGFX(4)", Text, "Auto", "bgfx_avi_name", Lower},
    {kWindowsPerformance, "Priority", "cboPriority", Combo, "0", "priority", Copy},
    {kDirect3DPostProcessing, "HLSL", "chkHLSL", Check, "0", "hlsl_enable", Copy},
    {kDirect3DPostProcessing, "HLSL Path", "txtHLSL(0)", Text, "hlsl", "hlslpath", Path},
    {kDirect3DPostProcessing, "HLSL Oversampling", "chkHLSLOversampling", Check, "0",
     "hlsl_oversampling", Copy},
    {kDirect3DPostProcessing, "HLSL Snap Width", "txtHLSL(1)", Text, "2048", "hlsl_snap_width",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "HLSL Snap Height", "txtHLSL(2)", Text, "1536", "hlsl_snap_height",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask Tile Mode", "txtHLSL(3)", Text, "0",
     "shadow_mask_tile_mode", Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask Alpha", "txtHLSL(4)", Text, "0.0", "shadow_mask_alpha",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask Texture", "txtHLSL(5)", Text, "shadow-mask.png",
     "shadow_mask_texture", Copy},
    {kDirect3DPostProcessing, "Shadow Mask X Count", "txtHLSL(6)", Text, "6", "shadow_mask_x_count",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask Y Count", "txtHLSL(7)", Text, "4", "shadow_mask_y_count",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask USize", "txtHLSL(8)", Text, "0.1875",
     "shadow_mask_usize", Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask VSize", "txtHLSL(9)", Text, "0.25", "shadow_mask_vsize",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask UOffset", "txtHLSL(10)", Text, "0.0",
     "shadow_mask_uoffset", Copy, LowerCase},
    {kDirect3DPostProcessing, "Shadow Mask VOffset", "txtHLSL(11)", Text, "0.0",
     "shadow_mask_voffset", Copy, LowerCase},
    {kDirect3DPostProcessing, "Quadric Distortion", "txtHLSL(12)", Text, "0.0", "distortion", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Cubic Distortion", "txtHLSL(13)", Text, "0.0", "cubic_distortion",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Distort Corner", "txtHLSL(14)", Text, "0.0", "distort_corner", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Round Corner", "txtHLSL(15)", Text, "0.0", "round_corner", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Smooth Border", "txtHLSL(16)", Text, "0.0", "smooth_border", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Reflection", "txtHLSL(17)", Text, "0.0", "reflection", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Vignetting", "txtHLSL(18)", Text, "0.0", "vignetting", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Scanline Alpha", "txtHLSL(19)", Text, "0.0", "scanline_alpha", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Scanline Size", "txtHLSL(20)", Text, "1.0", "scanline_size", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Scanline Height", "txtHLSL(21)", Text, "1.0", "scanline_height",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Scanline Variation", "txtHLSL(22)", Text, "1.0",
     "scanline_variation", Copy, LowerCase},
    {kDirect3DPostProcessing, "Scanline Bright Scale", "txtHLSL(23)", Text, "1.0",
     "scanline_bright_scale", Copy, LowerCase},
    {kDirect3DPostProcessing, "Scanline Bright Offset", "txtHLSL(24)", Text, "0.0",
     "scanline_bright_offset", Copy, LowerCase},
    {kDirect3DPostProcessing, "Scanline Jitter", "txtHLSL(25)", Text, "0.0", "scanline_jitter",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Hum Bar Alpha", "txtHLSL(26)", Text, "0.0", "hum_bar_alpha", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Defocus", "txtHLSL(27)", Text, "0.0,0.0", "defocus", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Converge X", "txtHLSL(28)", Text, "0.0,0.0,0.0", "converge_x", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Converge Y", "txtHLSL(29)", Text, "0.0,0.0,0.0", "converge_y", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Radial Converge X", "txtHLSL(30)", Text, "0.0,0.0,0.0",
     "radial_converge_x", Copy, LowerCase},
    {kDirect3DPostProcessing, "Radial Converge Y", "txtHLSL(31)", Text, "0.0,0.0,0.0",
     "radial_converge_y", Copy, LowerCase},
    {kDirect3DPostProcessing, "Red Ratio", "txtHLSL(32)", Text, "1.0,0.0,0.0", "red_ratio", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Green Ratio", "txtHLSL(33)", Text, "0.0,1.0,0.0", "grn_ratio", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Blue Ratio", "txtHLSL(34)", Text, "0.0,0.0,1.0", "blu_ratio", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Saturation", "txtHLSL(35)", Text, "1.0", "saturation", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Offset", "txtHLSL(36)", Text, "0.0,0.0,0.0", "offset", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Scale", "txtHLSL(37)", Text, "1.0,1.0,1.0", "scale", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Power", "txtHLSL(38)", Text, "1.0,1.0,1.0", "power", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Floor", "txtHLSL(39)", Text, "0.0,0.0,0.0", "floor", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Phosphor Life", "txtHLSL(40)", Text, "0.0,0.0,0.0", "phosphor_life",
     Copy, LowerCase},
    {kDirect3DPostProcessing, "Chroma Mode", "txtHLSL(41)", Text, "3", "chroma_mode", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Chroma Conversion Gain", "txtHLSL(42)", Text, "0.299,0.587,0.114",
     "chroma_conversion_gain", Copy, LowerCase},
    {kDirect3DPostProcessing, "Chroma A", "txtHLSL(43)", Text, "0.64,0.33", "chroma_a", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Chroma B", "txtHLSL(44)", Text, "0.30,0.60", "chroma_b", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Chroma C", "txtHLSL(45)", Text, "0.15,0.06", "chroma_c", Copy,
     LowerCase},
    {kDirect3DPostProcessing, "Chroma Y Gain", "txtHLSL(46)", Text, "0.2126,0.7152,0.0722",
     "chroma_y_gain", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ", "chkYIQ", Check, "0", "yiq_enable", Copy},
    {kNTSCPostProcessing, "YIQ Jitter", "txtYIQ(0)", Text, "0.0", "yiq_jitter", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ CC", "txtYIQ(1)", Text, "3.57954545", "yiq_cc", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ A", "txtYIQ(2)", Text, "0.5", "yiq_a", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ B", "txtYIQ(3)", Text, "0.5", "yiq_b", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ O", "txtYIQ(4)", Text, "0.0", "yiq_o", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ P", "txtYIQ(5)", Text, "1.0", "yiq_p", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ N", "txtYIQ(6)", Text, "1.0", "yiq_n", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ Y", "txtYIQ(7)", Text, "6.0", "yiq_y", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ I", "txtYIQ(8)", Text, "1.2", "yiq_i", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ Q", "txtYIQ(9)", Text, "0.6", "yiq_q", Copy, LowerCase},
    {kNTSCPostProcessing, "YIQ Scan Time", "txtYIQ(10)", Text, "52.6", "yiq_scan_time", Copy,
     LowerCase},
    {kNTSCPostProcessing, "YIQ Phase Count", "txtYIQ(11)", Text, "2", "yiq_phase_count", Copy,
     LowerCase},
    {kVectorPostProcessing, "Vector Beam Smooth", "txtVectorPost(0)", Text, "0.0",
     "vector_beam_smooth", Copy, LowerCase},
    {kVectorPostProcessing, "Vector Length Scale", "txtVectorPost(1)", Text, "0.5",
     "vector_length_scale", Copy, LowerCase},
    {kVectorPostProcessing, "Vector Length Ratio", "txtVectorPost(2)", Text, "0.5",
     "vector_length_ratio", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Blend Mode", "txtBloomPost(0)", Text, "0", "bloom_blend_mode",
     Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Scale", "txtBloomPost(1)", Text, "0.0", "bloom_scale", Copy,
     LowerCase},
    {kBloomPostProcessing, "Bloom Overdrive", "txtBloomPost(2)", Text, "1.0,1.0,1.0",
     "bloom_overdrive", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 0 Weight", "txtBloomPost(3)", Text, "1.0",
     "bloom_lvl0_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 1 Weight", "txtBloomPost(4)", Text, "0.64",
     "bloom_lvl1_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 2 Weight", "txtBloomPost(5)", Text, "0.32",
     "bloom_lvl2_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 3 Weight", "txtBloomPost(6)", Text, "0.16",
     "bloom_lvl3_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 4 Weight", "txtBloomPost(7)", Text, "0.08",
     "bloom_lvl4_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 5 Weight", "txtBloomPost(8)", Text, "0.06",
     "bloom_lvl5_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 6 Weight", "txtBloomPost(9)", Text, "0.04",
     "bloom_lvl6_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 7 Weight", "txtBloomPost(10)", Text, "0.02",
     "bloom_lvl7_weight", Copy, LowerCase},
    {kBloomPostProcessing, "Bloom Level 8 Weight", "txtBloomPost(11)", Text, "0.01",
     "bloom_lvl8_weight", Copy, LowerCase},
    {kBloomPostProcessing, "LUT", "chkBloomLUT", Check, "0", "lut_enable", Copy},
    {kBloomPostProcessing, "LUT Texture", "txtBloomPost(12)", Text, "lut-default.png",
     "lut_texture", Copy},
    {kBloomPostProcessing, "UI LUT", "chkBloomUILUT", Check, "0", "ui_lut_enable", Copy},
    {kBloomPostProcessing, "UI LUT Texture", "txtBloomPost(13)", Text, "lut-default.png",
     "ui_lut_texture", Copy},
    {kFullScreen, "Triple Buffer", "chkTripleBuffer", Check, "0", "triplebuffer", Copy},
    {kFullScreen, "Full Screen Brightness", "cboFullScreenBrightness", Combo, "1.00",
     "full_screen_brightness", Copy},
    {kFullScreen, "Full Screen Contrast", "cboFullScreenContrast", Combo, "1.00",
     "full_screen_contrast", Copy},
    {kFullScreen, "Full Screen Gamma", "cboFullScreenGamma", Combo, "1.00", "full_screen_gamma",
     Copy},
    {kInputDevice, "Dual Lightgun", "chkDualLightgun", Check, "0", "dual_lightgun", Copy},
    {kMiscellaneous, "Other Commands", "txtOtherCommands", Text, "", "", NotWritten, LowerCase},

});

} // namespace

std::span<const OptionRow> OptionCatalogue() {
    return kCatalogue;
}

std::optional<std::size_t> FindOptionByKey(std::string_view key) {
    for (std::size_t row = 0; row < kCatalogue.size(); ++row) {
        if (EqualsIgnoringCase(kCatalogue[row].key, key)) {
            return row;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> FindOptionByIniName(std::string_view iniOption) {
    for (std::size_t row = 0; row < kCatalogue.size(); ++row) {
        const auto names = IniOptionNames(kCatalogue[row]);
        if (!names.empty() && names.front() == iniOption) {
            return row;
        }
    }
    return std::nullopt;
}

std::vector<std::string_view> IniOptionNames(const OptionRow& row) {
    std::vector<std::string_view> names;
    std::string_view rest = row.iniOptions;
    while (!rest.empty()) {
        const std::size_t blank = rest.find(' ');
        names.push_back(rest.substr(0, blank));
        rest = blank == std::string_view::npos ? std::string_view{} : rest.substr(blank + 1);
    }
    return names;
}

std::optional<std::size_t> FindOptionByControl(std::string_view control) {
    static const auto index = [] {
        std::unordered_map<std::string_view, std::size_t> rows;
        for (std::size_t row = 0; row < kCatalogue.size(); ++row) {
            rows.emplace(kCatalogue[row].control, row);
        }
        return rows;
    }();
    const auto found = index.find(control);
    return found == index.end() ? std::nullopt : std::optional(found->second);
}

std::size_t RowOfControl(std::string_view control) {
    const auto row = FindOptionByControl(control);
    if (!row) {
        std::cerr << "Coinlight: no option is edited by " << control << '\n';
        std::abort();
    }
    return *row;
}

std::string_view OptionTag(const OptionRow& row) {
    return row.tag.empty() ? row.key : row.tag;
}

std::string_view ControlFamily(std::string_view control) {
    return control.substr(0, control.find('('));
}

std::optional<int> ControlIndex(std::string_view control) {
    const std::size_t open = control.find('(');
    if (open == std::string_view::npos || !control.ends_with(')')) {
        return std::nullopt;
    }
    int index = 0;
    const char* first = control.data() + open + 1;
    const char* last = control.data() + control.size() - 1;
    const auto [end, error] = std::from_chars(first, last, index);
    if (error != std::errc() || end != last) {
        return std::nullopt;
    }
    return index;
}

} // namespace coinlight
