# Image button, image toggle and check box.
target_sources(sf PRIVATE
  qt/SFFactoryButtons.cpp
  qt/SFPicFade.cpp
  qt/SFSkinPicture.cpp
  qt/SFToggleSkin.cpp
  qt/SFQTToggle.cpp
  qt/SFQTButton.cpp
  qt/SFQTRadioBox.cpp
  qt/SFQTCheckBox.cpp)
