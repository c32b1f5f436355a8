#pragma once
// Identifiers shared by every application of the suite.

#include <QLatin1StringView>
#include <array>

// One upper-case identifier per application of the suite, in the suite's fixed order.
inline constexpr std::array<QLatin1StringView, 48> kApplicationIdentifiers = {
    QLatin1StringView("MASTER"),           QLatin1StringView("REMOTE"),
    QLatin1StringView("PRESENTATION"),     QLatin1StringView("CONFIGURATION"),
    QLatin1StringView("REPLAY"),           QLatin1StringView("VALIDATION"),
    QLatin1StringView("GRID_MODELLING"),   QLatin1StringView("ACQUISITION"),
    QLatin1StringView("HELMSMAN"),         QLatin1StringView("DREDGE_MONITOR"),
    QLatin1StringView("SURVEY_PLANNER"),   QLatin1StringView("LINE_EDITOR"),
    QLatin1StringView("SOUNDING_EDITOR"),  QLatin1StringView("CROSS_SECTIONS"),
    QLatin1StringView("VOLUME_CALC"),      QLatin1StringView("TIDE_MANAGER"),
    QLatin1StringView("SOUND_VELOCITY"),   QLatin1StringView("CALIBRATION"),
    QLatin1StringView("PATCH_TEST"),       QLatin1StringView("SIDESCAN"),
    QLatin1StringView("MULTIBEAM"),        QLatin1StringView("SINGLEBEAM"),
    QLatin1StringView("SUB_BOTTOM"),       QLatin1StringView("MAGNETOMETER"),
    QLatin1StringView("POSITIONING"),      QLatin1StringView("HEADING"),
    QLatin1StringView("MOTION"),           QLatin1StringView("LOGGER"),
    QLatin1StringView("EXPORT"),           QLatin1StringView("IMPORT"),
    QLatin1StringView("CHART_PLOTTER"),    QLatin1StringView("PROFILE_VIEW"),
    QLatin1StringView("MODEL_3D"),         QLatin1StringView("DESIGN_MODEL"),
    QLatin1StringView("DREDGE_TRACK"),     QLatin1StringView("PRODUCTION"),
    QLatin1StringView("CUTTER_CONTROL"),   QLatin1StringView("DRAGHEAD_MONITOR"),
    QLatin1StringView("HOPPER_MONITOR"),   QLatin1StringView("ALARM_MONITOR"),
    QLatin1StringView("NETWORK_MONITOR"),  QLatin1StringView("LICENSE_MANAGER"),
    QLatin1StringView("PROJECT_MANAGER"),  QLatin1StringView("REPORT_GENERATOR"),
    QLatin1StringView("DATA_REDUCTION"),   QLatin1StringView("QUALITY_CONTROL"),
    QLatin1StringView("CLIENT_VIEW"),      QLatin1StringView("SIMULATOR"),
};

// The name of the helmsman's view.
inline constexpr QLatin1StringView kHelmsmanViewName("HelmsmanView");
