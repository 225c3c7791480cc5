// The common base of the price pane and the study panes, and the interface of a study pane. Chart window's
// thread.
#pragma once

#include "drawing/ChartWindow.h"
#include "drawing/PriceSource.h"

#include <string>

namespace zantroq {

class CBaseChart
{
public:
    virtual ~CBaseChart() = default;
    CChart2D* chart = nullptr; // not owned; set by the draw manager
};

// The interface of a study pane for the draw manager.
class CStudyChart : public virtual CBaseChart
{
public:
    virtual double GetHigh(int index) const = 0;
    virtual double GetLow(int index) const = 0;
    virtual double GetOpen(int index) const = 0;
    virtual double GetClose(int index) const = 0;
    virtual double GetValue(int index) const { return GetClose(index); } // price that the study uses
    virtual std::int64_t GetVolume(int index) const = 0;
    virtual int GetPointCount() const = 0;
    virtual void DrawStudy() = 0;                     // draws the whole displayed range
    virtual void UpdateStudy(int newPoints) = 0;      // appends live points
    virtual std::string GetStudyInfoText() const = 0; // the pane's header
    // The study's line of the readout, which starts with a newline; empty if its first series has no value at
    // the displayed point (from 1).
    virtual std::string ReadoutText(int point) const = 0;
    virtual void AdjustStudyBars() {} // fits bar widths after a zoom or resize

    // Writes GetStudyInfoText into label 1, the header of the pane.
    virtual void RefreshStudyHeader() = 0;

    IPaneWindow* dlg = nullptr;           // not owned
    int kind = 0;                         // a StudyKind
    int pane = 0;                         // 1 to 10: position in the window
    bool collapsed = false;               // only the title is visible
    const IPriceSource* prices = nullptr; // not owned
};

// Creates studies; implemented in src/studies.
class IStudyFactory
{
public:
    virtual ~IStudyFactory() = default;
    virtual CStudyChart* Create(int kind) = 0; // the caller owns it; null for an unknown kind
};

} // namespace zantroq
