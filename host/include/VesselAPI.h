// The host's vessel classes. A module derives its vessel class from VESSEL3;
// the host calls the virtual callbacks and the module calls the rest.
#pragma once

#include "DrawAPI.h"
#include "OrbiterAPI.h"

namespace hullhost {
class Vessel;
}

class VESSEL {
  public:
    VESSEL(OBJHANDLE hVessel, int fmodel = 1);
    virtual ~VESSEL();

    // Identity.
    OBJHANDLE GetHandle() const;
    char *GetName() const;
    char *GetClassName() const;
    int GetFlightModel() const { return flightmodel; }
    // 0 for VESSEL, 1 for VESSEL2, 2 for VESSEL3.
    int Version() const { return version; }

    // Mass, shape and body set-up.
    double GetSize() const;
    void SetSize(double size) const;
    double GetEmptyMass() const;
    void SetEmptyMass(double m) const;
    double GetMass() const;
    void GetPMI(VECTOR3 &pmi) const;
    void SetPMI(const VECTOR3 &pmi) const;
    void GetCrossSections(VECTOR3 &cs) const;
    void SetCrossSections(const VECTOR3 &cs) const;
    void GetRotDrag(VECTOR3 &rd) const;
    void SetRotDrag(const VECTOR3 &rd) const;
    void SetCW(double cw_z_pos, double cw_z_neg, double cw_x, double cw_y) const;
    void SetPitchMomentScale(double scale) const;
    void SetBankMomentScale(double scale) const;
    void SetSurfaceFrictionCoeff(double mu_lng, double mu_lat) const;
    void SetTouchdownPoints(const VECTOR3 &pt1, const VECTOR3 &pt2, const VECTOR3 &pt3) const;
    void SetTouchdownPoints(const TOUCHDOWNVTX *tdvtx, DWORD ntdvtx) const;
    void GetTouchdownPoints(VECTOR3 &pt1, VECTOR3 &pt2, VECTOR3 &pt3) const;
    DWORD GetTouchdownPointCount() const;
    bool GetTouchdownPoint(TOUCHDOWNVTX &tdvtx, DWORD idx) const;
    void SetVisibilityLimit(double vislimit, double spotlimit = -1.0) const;
    void SetEnableFocus(bool enable) const;
    bool GetEnableFocus() const;
    void ShiftCG(const VECTOR3 &shift);
    void SetReentryTexture(SURFHANDLE tex, double plimit = 6e7, double lscale = 1.0,
                           double wscale = 1.0) const;
    void SetCameraOffset(const VECTOR3 &co) const;
    void GetCameraOffset(VECTOR3 &co) const;
    void SetCameraDefaultDirection(const VECTOR3 &cd) const;
    void SetCameraDefaultDirection(const VECTOR3 &cd, double tilt) const;
    void GetCameraDefaultDirection(VECTOR3 &cd) const;
    void SetCameraRotationRange(double left, double right, double up, double down) const;

    // Docks and attachments.
    DOCKHANDLE CreateDock(const VECTOR3 &pos, const VECTOR3 &dir, const VECTOR3 &rot) const;
    UINT DockCount() const;
    ATTACHMENTHANDLE CreateAttachment(bool toparent, const VECTOR3 &pos, const VECTOR3 &dir,
                                      const VECTOR3 &rot, const char *id, bool loose = false) const;
    bool DelAttachment(ATTACHMENTHANDLE attachment) const;
    void SetAttachmentParams(ATTACHMENTHANDLE attachment, const VECTOR3 &pos, const VECTOR3 &dir,
                             const VECTOR3 &rot) const;
    void GetAttachmentParams(ATTACHMENTHANDLE attachment, VECTOR3 &pos, VECTOR3 &dir, VECTOR3 &rot) const;
    const char *GetAttachmentId(ATTACHMENTHANDLE attachment) const;
    OBJHANDLE GetAttachmentStatus(ATTACHMENTHANDLE attachment) const;
    DWORD AttachmentCount(bool toparent) const;
    DWORD GetAttachmentIndex(ATTACHMENTHANDLE attachment) const;
    ATTACHMENTHANDLE GetAttachmentHandle(bool toparent, DWORD i) const;
    bool AttachChild(OBJHANDLE child, ATTACHMENTHANDLE attachment, ATTACHMENTHANDLE child_attachment) const;
    bool DetachChild(ATTACHMENTHANDLE attachment, double vel = 0.0) const;

    // Propellant.
    PROPELLANT_HANDLE CreatePropellantResource(double maxmass, double mass = -1.0,
                                               double efficiency = 1.0) const;
    void DelPropellantResource(PROPELLANT_HANDLE &ph) const;
    void ClearPropellantResources() const;
    DWORD GetPropellantCount() const;
    PROPELLANT_HANDLE GetPropellantHandleByIndex(DWORD idx) const;
    double GetPropellantMaxMass(PROPELLANT_HANDLE ph) const;
    void SetPropellantMaxMass(PROPELLANT_HANDLE ph, double maxmass) const;
    double GetPropellantMass(PROPELLANT_HANDLE ph) const;
    void SetPropellantMass(PROPELLANT_HANDLE ph, double mass) const;
    double GetTotalPropellantMass() const;
    double GetPropellantFlowrate(PROPELLANT_HANDLE ph) const;

    // Thrusters and groups.
    THRUSTER_HANDLE CreateThruster(const VECTOR3 &pos, const VECTOR3 &dir, double maxth0,
                                   PROPELLANT_HANDLE hp = nullptr, double isp0 = 0.0, double isp_ref = 0.0,
                                   double p_ref = 101.4e3) const;
    bool DelThruster(THRUSTER_HANDLE &th) const;
    void ClearThrusterDefinitions() const;
    DWORD GetThrusterCount() const;
    THRUSTER_HANDLE GetThrusterHandleByIndex(DWORD idx) const;
    void GetThrusterRef(THRUSTER_HANDLE th, VECTOR3 &pos) const;
    void SetThrusterRef(THRUSTER_HANDLE th, const VECTOR3 &pos) const;
    void GetThrusterDir(THRUSTER_HANDLE th, VECTOR3 &dir) const;
    void SetThrusterDir(THRUSTER_HANDLE th, const VECTOR3 &dir) const;
    double GetThrusterMax0(THRUSTER_HANDLE th) const;
    void SetThrusterMax0(THRUSTER_HANDLE th, double maxth0) const;
    double GetThrusterIsp0(THRUSTER_HANDLE th) const;
    void SetThrusterIsp(THRUSTER_HANDLE th, double isp0, double isp_ref = 0.0, double p_ref = 101.4e3) const;
    PROPELLANT_HANDLE GetThrusterResource(THRUSTER_HANDLE th) const;
    void SetThrusterResource(THRUSTER_HANDLE th, PROPELLANT_HANDLE ph) const;
    double GetThrusterLevel(THRUSTER_HANDLE th) const;
    void SetThrusterLevel(THRUSTER_HANDLE th, double level) const;
    void IncThrusterLevel(THRUSTER_HANDLE th, double dlevel) const;
    THGROUP_HANDLE CreateThrusterGroup(THRUSTER_HANDLE *th, int nth, THGROUP_TYPE thgt) const;
    bool DelThrusterGroup(THGROUP_HANDLE thg, bool delth = false) const;
    THGROUP_HANDLE GetThrusterGroupHandle(THGROUP_TYPE thgt) const;
    DWORD GetGroupThrusterCount(THGROUP_HANDLE thg) const;
    THRUSTER_HANDLE GetGroupThruster(THGROUP_HANDLE thg, DWORD idx) const;
    double GetThrusterGroupLevel(THGROUP_TYPE thgt) const;
    double GetThrusterGroupLevel(THGROUP_HANDLE thg) const;
    void SetThrusterGroupLevel(THGROUP_TYPE thgt, double level) const;
    void SetThrusterGroupLevel(THGROUP_HANDLE thg, double level) const;
    void IncThrusterGroupLevel(THGROUP_TYPE thgt, double dlevel) const;
    double GetManualControlLevel(THGROUP_TYPE thgt, DWORD mode = MANCTRL_ATTMODE,
                                 DWORD device = MANCTRL_ANYDEVICE) const;
    int GetAttitudeMode() const;
    bool SetAttitudeMode(int mode) const;

    // Exhaust and particles.
    UINT AddExhaust(THRUSTER_HANDLE th, double lscale, double wscale, SURFHANDLE tex = nullptr) const;
    UINT AddExhaust(THRUSTER_HANDLE th, double lscale, double wscale, double lofs,
                    SURFHANDLE tex = nullptr) const;
    UINT AddExhaust(THRUSTER_HANDLE th, double lscale, double wscale, const VECTOR3 &pos, const VECTOR3 &dir,
                    SURFHANDLE tex = nullptr) const;
    bool DelExhaust(UINT idx) const;
    DWORD GetExhaustCount() const;
    PSTREAM_HANDLE AddExhaustStream(THRUSTER_HANDLE th, PARTICLESTREAMSPEC *pss = nullptr) const;
    PSTREAM_HANDLE AddExhaustStream(THRUSTER_HANDLE th, const VECTOR3 &pos,
                                    PARTICLESTREAMSPEC *pss = nullptr) const;
    PSTREAM_HANDLE AddParticleStream(PARTICLESTREAMSPEC *pss, const VECTOR3 &pos, const VECTOR3 &dir,
                                     double *lvl) const;
    bool DelExhaustStream(PSTREAM_HANDLE ch) const;

    // Meshes and visuals.
    UINT AddMesh(MESHHANDLE hMesh, const VECTOR3 *ofs = nullptr) const;
    UINT AddMesh(const char *meshname, const VECTOR3 *ofs = nullptr) const;
    bool DelMesh(UINT idx, bool retain_anim = false) const;
    void ClearMeshes(bool retain_anim = false) const;
    UINT GetMeshCount() const;
    MESHHANDLE GetMeshTemplate(UINT idx) const;
    bool SetMeshVisibilityMode(UINT idx, WORD mode) const;
    WORD GetMeshVisibilityMode(UINT idx) const;
    bool ShiftMesh(UINT idx, const VECTOR3 &ofs) const;
    bool GetMeshOffset(UINT idx, VECTOR3 &ofs) const;
    DEVMESHHANDLE GetDevMesh(VISHANDLE vis, UINT idx) const;
    bool AddBeacon(BEACONLIGHTSPEC *bs);
    bool DelBeacon(BEACONLIGHTSPEC *bs);
    void ClearBeacons();
    LightEmitter *AddSpotLight(const VECTOR3 &pos, const VECTOR3 &dir, double range, double att0, double att1,
                               double att2, double umbra, double penumbra, const COLOUR4 &diffuse,
                               const COLOUR4 &specular, const COLOUR4 &ambient) const;
    DWORD LightEmitterCount() const;
    const LightEmitter *GetLightEmitter(DWORD i) const;

    // Animations.
    UINT CreateAnimation(double initial_state) const;
    bool DelAnimation(UINT anim) const;
    ANIMATIONCOMPONENT_HANDLE AddAnimationComponent(UINT anim, double state0, double state1,
                                                    MGROUP_TRANSFORM *trans,
                                                    ANIMATIONCOMPONENT_HANDLE parent = nullptr) const;
    bool DelAnimationComponent(UINT anim, ANIMATIONCOMPONENT_HANDLE hAC);
    bool SetAnimation(UINT anim, double state) const;
    double GetAnimation(UINT anim) const;
    UINT GetAnimationCount() const;

    // Aerodynamics.
    AIRFOILHANDLE CreateAirfoil3(AIRFOIL_ORIENTATION align, const VECTOR3 &ref, AirfoilCoeffFuncEx cf,
                                 void *context, double c, double S, double A) const;
    bool DelAirfoil(AIRFOILHANDLE hAirfoil) const;
    void ClearAirfoilDefinitions() const;

    // Forces.
    void AddForce(const VECTOR3 &F, const VECTOR3 &r) const;
    void GetThrustVector(VECTOR3 &T) const;
    bool GetWeightVector(VECTOR3 &G) const;
    bool GetLiftVector(VECTOR3 &L) const;
    bool GetDragVector(VECTOR3 &D) const;
    bool GetForceVector(VECTOR3 &F) const;

    // Flight state.
    void GetStatus(VESSELSTATUS &status) const;
    void GetStatusEx(void *status) const;
    void DefSetState(const VESSELSTATUS *status) const;
    void DefSetStateEx(const void *status) const;
    int GetFlightStatus() const;
    bool GroundContact() const;
    OBJHANDLE GetSurfaceRef() const;
    OBJHANDLE GetGravityRef() const;
    void GetGlobalPos(VECTOR3 &pos) const;
    void GetGlobalVel(VECTOR3 &vel) const;
    void GetRelativePos(OBJHANDLE hRef, VECTOR3 &pos) const;
    void GetRelativeVel(OBJHANDLE hRef, VECTOR3 &vel) const;
    void GetRotationMatrix(MATRIX3 &R) const;
    void SetRotationMatrix(const MATRIX3 &R) const;
    void GlobalRot(const VECTOR3 &rloc, VECTOR3 &rglob) const;
    void Global2Local(const VECTOR3 &glob, VECTOR3 &loc) const;
    void Local2Global(const VECTOR3 &loc, VECTOR3 &glob) const;
    void HorizonRot(const VECTOR3 &loc, VECTOR3 &hor) const;
    void HorizonInvRot(const VECTOR3 &hor, VECTOR3 &loc) const;
    void GetAngularVel(VECTOR3 &avel) const;
    void SetAngularVel(const VECTOR3 &avel) const;
    void GetGlobalOrientation(VECTOR3 &arot) const;
    void SetGlobalOrientation(const VECTOR3 &arot) const;
    OBJHANDLE GetEquPos(double &longitude, double &latitude, double &radius) const;
    double GetAltitude() const;
    double GetAltitude(int mode, int *reslvl = nullptr) const;
    double GetPitch() const;
    double GetBank() const;
    double GetYaw() const;
    double GetAirspeed() const;
    double GetGroundspeed() const;
    bool GetAirspeedVector(int frame, VECTOR3 &v) const;
    bool GetHorizonAirspeedVector(VECTOR3 &v) const;
    double GetDynPressure() const;
    double GetAtmPressure() const;
    double GetAtmDensity() const;
    double GetAtmTemperature() const;
    double GetMachNumber() const;
    OBJHANDLE GetElements(ELEMENTS &el, double &mjd_ref) const;
    bool GetElements(OBJHANDLE hRef, ELEMENTS &el, ORBITPARAM *prm = nullptr, double mjd_ref = 0.0,
                     int frame = FRAME_ECL) const;
    OBJHANDLE GetApDist(double &apdist) const;
    OBJHANDLE GetPeDist(double &pedist) const;

    // Navigation modes.
    bool ActivateNavmode(int mode);
    bool DeactivateNavmode(int mode);
    bool ToggleNavmode(int mode);
    bool GetNavmodeState(int mode);

    // Scenario.
    void ParseScenarioLineEx(char *line, void *status) const;
    void SaveDefaultState(FILEHANDLE scn) const;

    // The host's own vessel object behind this interface.
    hullhost::Vessel *HostVessel() const { return vessel; }

  protected:
    hullhost::Vessel *vessel;
    short flightmodel;
    short version;
    int reserved_;
};

// The first level of callbacks. The host calls them in this order of life:
// constructor, clbkSetClassCaps, clbkLoadStateEx (scenario vessels only),
// clbkPostCreation, then clbkPreStep/clbkPostStep each frame.
class VESSEL2 : public VESSEL {
  public:
    VESSEL2(OBJHANDLE hVessel, int fmodel = 1);
    virtual void clbkSetClassCaps(FILEHANDLE cfg);
    virtual void clbkSaveState(FILEHANDLE scn);
    virtual void clbkLoadStateEx(FILEHANDLE scn, void *status);
    virtual void clbkSetStateEx(const void *status);
    virtual void clbkPostCreation();
    virtual void clbkFocusChanged(bool getfocus, OBJHANDLE hNewVessel, OBJHANDLE hOldVessel);
    virtual void clbkPreStep(double simt, double simdt, double mjd);
    virtual void clbkPostStep(double simt, double simdt, double mjd);
    virtual bool clbkPlaybackEvent(double simt, double event_t, const char *event_type, const char *event);
    virtual void clbkVisualCreated(VISHANDLE vis, int refcount);
    virtual void clbkVisualDestroyed(VISHANDLE vis, int refcount);
    virtual void clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, HDC hDC);
    virtual void clbkRCSMode(int mode);
    virtual void clbkADCtrlMode(DWORD mode);
    virtual void clbkHUDMode(int mode);
    virtual void clbkMFDMode(int mfd, int mode);
    virtual void clbkNavMode(int mode, bool active);
    virtual void clbkDockEvent(int dock, OBJHANDLE mate);
    virtual void clbkAnimate(double simt);
    virtual bool clbkLoadGenericCockpit();
    virtual bool clbkLoadPanel(int id);
    virtual bool clbkPanelMouseEvent(int id, int event, int mx, int my);
    virtual bool clbkPanelRedrawEvent(int id, int event, SURFHANDLE surf);
    virtual bool clbkLoadVC(int id);
    virtual bool clbkVCMouseEvent(int id, int event, VECTOR3 &p);
    virtual bool clbkVCRedrawEvent(int id, int event, SURFHANDLE surf);
    virtual int clbkConsumeDirectKey(char *kstate);
    virtual int clbkConsumeBufferedKey(DWORD key, bool down, char *kstate);
};

class VESSEL3 : public VESSEL2 {
  public:
    VESSEL3(OBJHANDLE hVessel, int fmodel = 1);
    virtual bool clbkLoadPanel2D(int id, void *hPanel, DWORD viewW, DWORD viewH);
    virtual bool clbkPanelMouseEvent(int id, int event, int mx, int my, void *context);
    virtual bool clbkPanelRedrawEvent(int id, int event, SURFHANDLE surf, void *context);
    virtual int clbkGeneric(int msgid = 0, int prm = 0, void *context = nullptr);
    virtual bool clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp);
    virtual void clbkRenderHUD(int mode, const HUDPAINTSPEC *hps, SURFHANDLE hTex);
    virtual void clbkGetRadiationForce(const VECTOR3 &mflux, VECTOR3 &F, VECTOR3 &pos);
    using VESSEL2::clbkDrawHUD;
    using VESSEL2::clbkPanelMouseEvent;
    using VESSEL2::clbkPanelRedrawEvent;
};

// Every vessel object behind a handle starts with its VESSEL part, and the
// derived classes add no data of their own.
static_assert(sizeof(VESSEL2) == sizeof(VESSEL));
static_assert(sizeof(VESSEL3) == sizeof(VESSEL));
static_assert(sizeof(VESSEL) % alignof(double) == 0, "no tail padding for a derived class to reuse");

// The module's exports.
typedef VESSEL *(*OvcInitFunc)(OBJHANDLE hvessel, int flightmodel);
typedef void (*OvcExitFunc)(VESSEL *vessel);
