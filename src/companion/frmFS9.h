#pragma once

#include "archive/paths.h"
#include "companion/frmFS9_controls.h"
#include "forms/form_of.h"
#include "language/language_support.h"
#include "layout/clsResize.h"
#include "platform/services.h"
#include "prompts/prompts.h"
#include "state/process_state.h"
#include "viewer/viewport/chart_frame.h"

#include <QString>
#include <memory>
#include <optional>

namespace quarvel {

/// What the companion window works with; all of it outlives the window.
struct frmFS9Needs {
    ProcessState& state;
    const ArchivePaths& paths;
    modLanguageSupport& language;
    Prompts& prompts;
    const Services& services;
    Windows& windows;
};

/// The companion of the flight simulator: the chosen chart, or the airport's picture, above every other
/// window. Minimised, it lives on as an icon in the notification area.
class frmFS9 : public FormOf<frmFS9Controls>, private IconWindow {
public:
    explicit frmFS9(const frmFS9Needs& needs);

protected:
    void wire() override;
    void forgetControls() override;
    void Form_Load() override;
    void Form_Resize() override;
    void Form_KeyDown(KeyDown& key) override;
    void Form_MouseMove(int button, int shift, float x, float y) override;
    Closing Form_QueryUnload(UnloadReason reason) override;
    void Form_Unload() override;
    void giveOwnTexts() override;

private:
    // What `CompanionMode` says.
    static constexpr qint16 showsChart = 1;
    static constexpr qint16 showsAirport = 2;

    // The picture (frmFS9_picture.cpp)
    enum class Loaded { Yes, No };
    Loaded LoadCompanionPicture();
    [[nodiscard]] Result<QString> picturePath() const;
    void tellOnceShown(Task task, const std::optional<Failure>& failure = {});
    void clearImages();
    void Image1_MouseDown(int button, float x, float y);
    void Picture1_WheelTurned(const WheelTurn& turn);
    void Picture1_Dragged(Drag part, QPointF pointer);
    void beepIf(ZoomOutcome outcome);
    void HScroll1_Scroll();
    void HScroll1_Change();
    void VScroll1_Scroll();
    void VScroll1_Change();

    // The icon and its menu (frmFS9_menu.cpp)
    void mnuAeroporto_Click();
    void mnuProcScelta_Click();
    void mnuRipris_Click();
    void mnuNuovaproc_Click();
    void mPopExit_Click();
    void switchTo(qint16 mode);
    void comeBack();
    void showAbove();
    void addIcon();
    void removeIcon();
    [[nodiscard]] QIcon icon() const override;
    void iconMouse(int message) override;
    void iconLost() override;

    ProcessState& state_;
    const ArchivePaths& paths_;
    modLanguageSupport& language_;
    Prompts& prompts_;
    const Services& services_;

    // The window's fields, which go with its loading.
    qint32 TwipsPerPixelX = 0;
    qint32 TwipsPerPixelY = 0;
    qint32 ZoomLevel = 0; ///< zoom-in steps minus zoom-out steps since the picture was loaded
    std::unique_ptr<clsResize> Resizer;
    bool wasMinimised_ = false;
    bool hasPicture_ = false; ///< not yet, if the chart that the window opened for could not be shown
    std::optional<ChartFrame> chart_;
};

} // namespace quarvel
