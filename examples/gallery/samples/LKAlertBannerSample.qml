import QtQuick

GallerySample {
    subject: banner

    LKAlertBanner {
        id: banner
        width: 528
        text: "A new version is ready"
        buttonText: "Restart"
        buttonTooltip: "Restart and update"
    }
    LKAlertBanner {
        width: 528
        bannerType: LKAlertBanner.Error
        text: "No connection: what you write is sent as soon as there is one again, and what others write is shown then"
        buttonText: "Try again"
    }
    LKAlertBanner {
        width: 528
        bannerType: LKAlertBanner.Issue
        text: "Your microphone is very quiet"
        interactive: true
    }
    LKAlertBanner {
        width: 528
        bannerType: LKAlertBanner.Success
        text: "Connected"
        closeButtonVisible: false
    }
    LKAlertBanner {
        width: 528
        bannerType: LKAlertBanner.Transient
        text: "Disabled"
        buttonText: "Restart"
        enabled: false
    }
}
