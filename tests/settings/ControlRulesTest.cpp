#include "settings/ControlRules.h"

#include <gtest/gtest.h>

#include "settings/OptionCatalogue.h"

namespace coinlight {
namespace {

/// A page as the rules see it: every control enabled, every value at its default.
struct Page {
    SettingsPageState state;

    Page& Set(std::string_view control, std::string value) {
        state.values[RowOfControl(control)] = std::move(value);
        return *this;
    }
    const std::string& Value(std::string_view control) const {
        return state.values[RowOfControl(control)];
    }
    bool On(std::string_view control) const { return state.states.Row(control); }
    bool On(GroupCommand command) const { return state.states.Command(command); }
};

TEST(ControlRules, TheSimpleGroupsFollowTheirBox) {
    Page page;
    ControlStateThrottle(page.Set("chkThrottle", "0").state);
    EXPECT_FALSE(page.On("chkSleep"));
    ControlStateThrottle(page.Set("chkThrottle", "1").state);
    EXPECT_TRUE(page.On("chkSleep"));

    ControlStateAutoStretch(page.Set("chkAutoStretchXY", "1").state);
    EXPECT_FALSE(page.On("chkUnevenStretchX"));
    EXPECT_FALSE(page.On("chkUnevenStretchY"));

    ControlStateJoystick(page.Set("chkJoystick", "0").state);
    for (auto control : {"cboDeadzone", "cboSaturation", "cboThreshold"}) {
        EXPECT_FALSE(page.On(control)) << control;
    }
    ControlStateInput(page.Set("chkLightgun", "0").Set("chkMouse", "1").state);
    EXPECT_FALSE(page.On("chkDualLightgun")) << "the mouse decides nothing";
    ControlStateInput(page.Set("chkLightgun", "1").state);
    EXPECT_TRUE(page.On("chkDualLightgun"));

    ControlStatePlugins(page.Set("chkPlugins", "0").state);
    EXPECT_FALSE(page.On("txtPluginEnable"));
    EXPECT_FALSE(page.On("txtPluginDisable"));
}

TEST(ControlRules, NoSoundDisablesTheSoundRowsButKeepsTheirValues) {
    Page page;
    ControlStateSound(page.Set("cboSound", "None").Set("chkSamples", "1").state);
    for (auto control : {"cboAudioLat", "cboVolume", "cboSampleRate", "chkSamples"}) {
        EXPECT_FALSE(page.On(control)) << control;
    }
    EXPECT_EQ(page.Value("chkSamples"), "1");
    ControlStateSound(page.Set("cboSound", "SDL").Set("chkSamples", "0").state);
    EXPECT_TRUE(page.On("chkSamples"));
    EXPECT_TRUE(page.On("cboVolume"));
    EXPECT_FALSE(page.On("cboSampleRate")) << "the rate is for samples";
}

TEST(ControlRules, TheVideoModeDecidesAndTheWindowHasTheLastWord) {
    Page gdi;
    ControlStateVideo(gdi.Set("cboVideo", "GDI").Set("chkWindow", "0").state);
    for (auto control : {"chkWaitVSync", "chkTripleBuffer", "chkFilter", "chkHLSL", "chkSwitchRes",
                         "cboFullScreenGamma", "chkMaximize"}) {
        EXPECT_FALSE(gdi.On(control)) << control;
    }

    Page d3d;
    ControlStateVideo(d3d.Set("cboVideo", "D3D").Set("chkWindow", "1").state);
    EXPECT_FALSE(d3d.On("chkTripleBuffer")) << "a window has no triple buffer";
    EXPECT_TRUE(d3d.On("chkMaximize"));
    EXPECT_FALSE(d3d.On("chkSwitchRes"));
    EXPECT_FALSE(d3d.On("cboFullScreenBrightness"));
    ControlStateVideo(d3d.Set("chkWindow", "0").state);
    EXPECT_TRUE(d3d.On("chkTripleBuffer"));
    EXPECT_TRUE(d3d.On("chkSwitchRes"));
    EXPECT_FALSE(d3d.On("chkMaximize"));

    Page opengl;
    ControlStateVideo(opengl.Set("cboVideo", "Soft").state);
    EXPECT_FALSE(opengl.On("chkTripleBuffer"));
    EXPECT_TRUE(opengl.On("chkFilter"));
    EXPECT_TRUE(opengl.On("cboFullScreenContrast"));
}

TEST(ControlRules, SwitchingVideoUntickesHlslAndGlslForGood) {
    Page page;
    page.Set("cboVideo", "D3D").Set("chkHLSL", "1");
    ControlStateVideo(page.Set("cboVideo", "OpenGL").state);
    EXPECT_EQ(page.Value("chkHLSL"), "0");
    EXPECT_TRUE(page.On("chkGLSL"));
    ControlStateVideo(page.Set("chkGLSL", "1").Set("cboVideo", "D3D").state);
    EXPECT_EQ(page.Value("chkGLSL"), "0");
    EXPECT_EQ(page.Value("chkHLSL"), "0") << "coming back does not tick it again";
    EXPECT_FALSE(page.On("txtHLSL(17)")) << "its blocks followed";
}

TEST(ControlRules, BgfxDisablesHlslAndEveryPostProcessingBlock) {
    Page page;
    page.Set("cboVideo", "D3D").Set("chkHLSL", "1").Set("chkYIQ", "1");
    ControlStateHLSL(page.state);
    EXPECT_TRUE(page.On("txtYIQ(4)"));
    EXPECT_TRUE(page.On(GroupCommand::YIQDefaults));
    ControlStateVideo(page.Set("cboVideo", "BGFX").state);
    EXPECT_FALSE(page.On("chkHLSL"));
    EXPECT_EQ(page.Value("chkHLSL"), "0");
    for (auto control : {"chkHLSLOversampling", "txtHLSL(0)", "chkYIQ", "txtYIQ(11)",
                         "txtVectorPost(1)", "txtBloomPost(13)", "chkBloomLUT"}) {
        EXPECT_FALSE(page.On(control)) << control;
    }
    for (auto command : {GroupCommand::SelectHLSL, GroupCommand::HLSLDefaults,
                         GroupCommand::YIQDefaults, GroupCommand::BloomPostDefaults}) {
        EXPECT_FALSE(page.On(command));
    }
    EXPECT_TRUE(page.On("txtBGFX(3)"));
    EXPECT_TRUE(page.On("cboBGFX(0)"));
    EXPECT_TRUE(page.On(GroupCommand::SelectBGFX));
}

TEST(ControlRules, HlslEnablesItsBlocksByTheirBoxesAndTheScreen) {
    Page page;
    ApplyScreenBlocks(SettingsScreen::Raster, page.state.states);
    page.Set("cboVideo", "Auto").Set("chkHLSL", "1").Set("chkBloomLUT", "1");
    ControlStateHLSL(page.state);
    EXPECT_TRUE(page.On("txtHLSL(46)"));
    EXPECT_TRUE(page.On("chkYIQ"));
    EXPECT_FALSE(page.On("txtYIQ(0)")) << "the NTSC box is unticked";
    EXPECT_FALSE(page.On("txtVectorPost(0)")) << "a raster screen has no vector block";
    EXPECT_TRUE(page.On("txtBloomPost(11)"));
    EXPECT_TRUE(page.On("txtBloomPost(12)"));
    EXPECT_FALSE(page.On("txtBloomPost(13)"));

    ApplyScreenBlocks(SettingsScreen::Vector, page.state.states);
    ControlStateHLSL(page.state);
    EXPECT_TRUE(page.On("txtVectorPost(2)"));
    EXPECT_TRUE(page.state.states.vectorFrames);
    EXPECT_FALSE(page.On("txtUIModeKey")) << "only other machines have it";
    ApplyScreenBlocks(SettingsScreen::Other, page.state.states);
    EXPECT_TRUE(page.On("txtUIModeKey"));

    // Without HLSL the NTSC and LUT rules leave everything as it is.
    Page off;
    off.state.states.SetRow("txtYIQ(3)", false);
    ControlStateYIQ(off.Set("chkYIQ", "1").state);
    ControlStateBloomUILUT(off.Set("chkBloomUILUT", "0").state);
    EXPECT_FALSE(off.On("txtYIQ(3)"));
    EXPECT_TRUE(off.On("txtBloomPost(13)"));
}

TEST(ControlRules, OpenGlShadersFollowTheGlslBox) {
    Page page;
    ControlStateOpenGL(page.Set("cboVideo", "OpenGL").Set("chkGLSL", "0").state);
    EXPECT_TRUE(page.On("chkVBO"));
    EXPECT_FALSE(page.On("txtGLSL(7)"));
    EXPECT_FALSE(page.On(SelectGLSL(7)));
    ControlStateOpenGL(page.Set("chkGLSL", "1").state);
    EXPECT_TRUE(page.On("txtGLSL(0)"));
    EXPECT_TRUE(page.On(SelectGLSL(0)));
    ControlStateOpenGL(page.Set("cboVideo", "D3D").state);
    EXPECT_FALSE(page.On("chkGLSLFilter"));
    EXPECT_FALSE(page.On("txtGLSL(4)"));
}

TEST(ControlRules, ThePerScreenRowsFollowTheNumberOfScreensOutsideALoad) {
    Page page;
    ControlStateNumScreens(page.Set("cboNumScreens", "1").state);
    for (auto control : {"cboScreen(0)", "txtAspect(0)", "txtView(3)"}) {
        EXPECT_FALSE(page.On(control)) << control;
    }
    EXPECT_EQ(page.Value("txtAspect(0)"), "Auto") << "disabled rows keep their values";
    ControlStateNumScreens(page.Set("cboNumScreens", "3").state);
    EXPECT_TRUE(page.On("txtResolution(2)"));
    EXPECT_FALSE(page.On("cboScreen(3)"));

    page.state.loadingSettings = true;
    ControlStateNumScreens(page.Set("cboNumScreens", "1").state);
    EXPECT_TRUE(page.On("txtResolution(2)")) << "it rests while a screen loads";

    page.state.loadingSettings = false;
    ControlStateNumScreens(page.Set("cboNumScreens", "two").state);
    ASSERT_EQ(page.state.errors.size(), 1u);
    EXPECT_EQ(page.state.errors[0].text,
              "Error 13 (Type mismatch) in procedure ControlStateNumScreens of Module "
              "modSettings.\nLine Number: 1");
}

TEST(ControlRules, AllRunsTheLoadRulesButNotTheStretchOneAndEndsTheLoad) {
    Page page;
    page.state.loadingSettings = true;
    page.state.states.SetRow("chkUnevenStretchX", false); // left so by an earlier click
    page.Set("chkThrottle", "0").Set("cboVideo", "BGFX").Set("chkHLSL", "1");
    ControlStateAll(page.state);
    EXPECT_FALSE(page.state.loadingSettings);
    EXPECT_FALSE(page.On("chkSleep"));
    EXPECT_TRUE(page.On("txtBGFX(0)"));
    EXPECT_EQ(page.Value("chkHLSL"), "0");
    EXPECT_FALSE(page.On("txtHLSL(1)"));
    EXPECT_FALSE(page.On("chkUnevenStretchX"));
    EXPECT_TRUE(page.state.errors.empty());
}

TEST(ControlRules, CommandsAreNamedWithTheirTwins) {
    EXPECT_EQ(GroupCommandName(GroupCommand::SelectBGFX), "cmdSelectBGFX");
    EXPECT_EQ(GroupCommandLinkName(GroupCommand::SelectBGFX), "lblBLinks(24)");
    EXPECT_EQ(GroupCommandLinkName(GroupCommand::HLSLDefaults), "lblBLinks(20)");
    EXPECT_EQ(GroupCommandName(SelectGLSL(5)), "cmdSelectGLSL(5)");
    EXPECT_EQ(GroupCommandLinkName(SelectGLSL(5)), "lblGLSLBLinks(5)");
}

} // namespace
} // namespace coinlight
