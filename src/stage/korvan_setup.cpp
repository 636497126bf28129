// The stage's first values and its set-up once the framework has built it.
#include "config/value_scan.h"
#include "stage/korvan.h"

void Korvan::InitDefaults() {
    HULLKIT::InitDefaults();
    program = std::make_unique<FlightProgram>(this);
    prematureSep = fairingDropped = sozDropped = ullageInProgress = false;
    ignitionsUsed = 0;
    ullageLeft = 0.0;
    ignFailAt = 1000;
}

void Korvan::ApplyConfiguration() {
    HULLKIT::ApplyConfiguration();
    NavOverrideAvailable = NavOverrideEnabled = true;
    pitchControl = AnimCtrlTable.Find("acMainPitch");
    yawControl = AnimCtrlTable.Find("acMainYaw");
    rollControl = nullptr; // the engine has no roll gimbal
    const THRUSTER_REC *main0 = ThrusterTable.Find("Main0");
    mainThruster = main0 ? main0->handle : nullptr;
    ullageTime = CfgNumber("UllageTime");
    maxIgnitions = 0;
    ScanInt(Cfg("MaxNumberOfIgnitions"), maxIgnitions);
    const TANK_REC *rcs = TankTable.Find("RCS");
    rcsTank = rcs ? rcs->handle : nullptr;

    // What still hangs on the stage weighs with it; a hidden mesh is a drop
    // that has happened.
    const MESH_REC *fairing = MeshTable.Find("Fairing");
    fairingDropped = fairing && fairing->vis == 0;
    if (!fairingDropped)
        DryMass += CfgNumber("MidFairingMass");
    const MESH_REC *soz = MeshTable.Find("SOZL");
    sozDropped = soz && soz->vis == 0;
    if (!sozDropped)
        DryMass += CfgNumber("EmptySOZMass");
    UpdateCompositeMass();

    // A stage loaded free-flying with its payload aboard goes on with its program.
    const CHILD_REC *payload = ChildTable.Find("Payload1");
    const bool onCarrier = Attached || (ToParentAttachment && GetAttachmentStatus(ToParentAttachment));
    if (!onCarrier && payload && !payload->AttachedName.empty() && !program->Empty())
        program->StartNextStep();
}

double Korvan::CfgNumber(const char *key) {
    double value = 0.0;
    ScanDouble(Cfg(key), value);
    return value;
}
