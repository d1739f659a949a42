import QtQuick

GallerySample {
    subject: banner

    LKBanner {
        id: banner
        width: 360
        bannerType: LKAlertBanner.Issue
        headerText: "Your camera does not answer"
        subText: "Somebody else may be using it. Close the other application, and try again."
        actionButtonText: "Try again"
    }
    LKBanner {
        bannerType: LKAlertBanner.Success
        headerText: "Saved"
        closeButtonVisible: false
    }
    LKBanner {
        bannerType: LKAlertBanner.Error
        headerText: "Not sent"
        actionButtonText: "Send again"
        actionButtonEnabled: false
        closeButtonEnabled: false
    }
    LKBanner {
        subText: "Only a text, without an icon"
        iconName: ""
    }
    LKBanner {
        bannerType: LKAlertBanner.Transient
        headerText: "Disabled"
        enabled: false
    }
}
