// What a price pane and a study pane have in common, and the interface of a study pane. Chart window's thread.
#pragma once

#include "drawing/ChartWindow.h"
#include "drawing/PriceSource.h"

#include <string>

namespace zantroq {

class CBaseChart
{
public:
    virtual ~CBaseChart() = default;
    CChart2D* chart = nullptr; // not owned; set by the draw manager when the pane is made
};

// A study pane as the draw manager sees it.
class CStudyChart : public virtual CBaseChart
{
public:
    virtual double GetHigh(int index) const = 0;
    virtual double GetLow(int index) const = 0;
    virtual double GetOpen(int index) const = 0;
    virtual double GetClose(int index) const = 0;
    virtual double GetValue(int index) const { return GetClose(index); } // the price a study works on
    virtual std::int64_t GetVolume(int index) const = 0;
    virtual int GetPointCount() const = 0;
    virtual void DrawStudy() = 0;                     // the whole displayed range
    virtual void UpdateStudy(int newPoints) = 0;      // append live points
    virtual std::string GetStudyInfoText() const = 0; // the pane's header
    // The study's line of the readout, opening with a newline; empty where its first series has no value at
    // the displayed point (from 1).
    virtual std::string ReadoutText(int point) const = 0;
    virtual void AdjustStudyBars() {} // fits bar widths after a zoom or resize

    // Writes GetStudyInfoText into the pane's header, its label 1.
    virtual void RefreshStudyHeader() = 0;

    IPaneWindow* dlg = nullptr;           // not owned
    int kind = 0;                         // a StudyKind
    int pane = 0;                         // 1 to 10: the pane's place in the window
    bool collapsed = false;               // shows only its title
    const IPriceSource* prices = nullptr; // not owned
};

// Makes the study of a kind; implemented above the drawing side.
class IStudyFactory
{
public:
    virtual ~IStudyFactory() = default;
    virtual CStudyChart* Create(int kind) = 0; // the caller owns it; null for an unknown kind
};

} // namespace zantroq
